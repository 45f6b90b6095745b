# Include directions. A new area needs a line in BEGIN.
function area(path) { sub(/\/.*/, "", path); return path }
function app(path) { match(path, /^apps\/[^\/]+/); return substr(path, 1, RLENGTH) }
function say(text) { printf "%s:%d: %s\n", FILENAME, FNR, text; bad = 1 }

BEGIN {
    may["framework"] = " framework "
    may["family"] = " framework family "
    may["frame"] = may["config"] = " framework family frame config "
    may["aviation"] = may["files"] = " framework family frame config aviation files "
    may["toolkit"] = may["resources"] = may["include"] = " framework family frame config aviation files toolkit resources include "
    areas = may["include"] "apps "
    count = split("windows.h windowsx.h windef.h winbase.h winuser.h wingdi.h winreg.h winver.h winsvc.h commctrl.h commdlg.h prsht.h " \
                  "richedit.h shlobj.h shlwapi.h shellapi.h ole2.h objbase.h tchar.h mmsystem.h winsock2.h", names)
    for (i = 1; i <= count; i++) windows[names[i]] = 1
}

!/^[ \t]*#[ \t]*include[ \t]*["<]/ { next }

{
    match($0, /["<][^">]+[">]/)
    quoted = substr($0, RSTART, 1) == "\""
    target = substr($0, RSTART + 1, RLENGTH - 2)
    from = area(FILENAME)
    to = area(target)
    core = FILENAME ~ /\/core\//
}

!quoted && core && (tolower(target) in windows) && FILENAME != "framework/core/BaseTypes.h" {
    say("a core file includes the Windows header <" target ">; only framework/core/BaseTypes.h may")
}
!quoted && core && target ~ /^afx/ { say("a core file includes the framework's <" target ">") }
!quoted { next }

target !~ /\// {
    if (target != "VornCommon.h" || from != "apps") say("\"" target "\" is not written from the root of the repository")
    next
}
index(areas, " " to " ") == 0 { say("\"" target "\" is not written from the root of the repository"); next }
core && target !~ /\/core\// { say("a core file includes \"" target "\", which is in no core folder") }
from == "apps" {
    if (to == "apps" ? app(target) != app(FILENAME) && app(target) !~ /^apps\/(chart|datasets|planner)$/ : !core)
        say("a program knows <VornCommon.h>, its own files, the chart, the data sets and the planner, not \"" target "\"")
    next
}
# The application object owns the unit converter, which lives with the other values.
FILENAME == "frame/VornCommonApp.cpp" && target == "aviation/ConversionBoy.h" { next }
index(may[from], " " to " ") == 0 { say("\"" target "\": " from " may include only" may[from]) }

END { exit bad }
