#include "apps/vorntool/FolderNames.h"

#include "apps/vorntool/core/ToolNumbers.h"

#include <VornCommon.h>

namespace vorn::tool
{

namespace
{

struct FolderName
{
    DefinedPath path;
    const char* name;
};

// Spelled once: the compiler keeps names and numbers together.
#define VORN_FOLDER(name)                                                                                              \
    {                                                                                                                  \
        name, #name                                                                                                    \
    }

// Those that have more than a number for a name.
constexpr FolderName kNames[] = {VORN_FOLDER(DP_EXE),          VORN_FOLDER(DP_ROOT),
                                 VORN_FOLDER(DP_USER),         VORN_FOLDER(DP_USERHIDDEN),
                                 VORN_FOLDER(DP_USERROAM),     VORN_FOLDER(DP_PUBLIC),
                                 VORN_FOLDER(DP_PUBLICHIDDEN), VORN_FOLDER(DP_COMMON),
                                 VORN_FOLDER(DP_DATA),         VORN_FOLDER(DP_DATA2),
                                 VORN_FOLDER(DP_VPL),          VORN_FOLDER(DP_BITMAP),
                                 VORN_FOLDER(DP_TRACK),        VORN_FOLDER(DP_CACHE),
                                 VORN_FOLDER(DP_NOTEBOOK),     VORN_FOLDER(DP_CHECKLIST),
                                 VORN_FOLDER(DP_VEHICLE),      VORN_FOLDER(DP_AIRCRAFT),
                                 VORN_FOLDER(DP_TERRAIN),      VORN_FOLDER(DP_FONT),
                                 VORN_FOLDER(DP_CHARTS),       VORN_FOLDER(DP_APPROACH),
                                 VORN_FOLDER(DP_REPORT),       VORN_FOLDER(DP_THEME),
                                 VORN_FOLDER(DP_APTDIAGRAM),   VORN_FOLDER(DP_WXOVERLAY),
                                 VORN_FOLDER(DP_USERWP),       VORN_FOLDER(DP_ROUTE),
                                 VORN_FOLDER(DP_WX),           VORN_FOLDER(DP_WXGRAPHICS),
                                 VORN_FOLDER(DP_WXVECTOR),     VORN_FOLDER(DP_WXTEXT),
                                 VORN_FOLDER(DP_WXSCRIPT),     VORN_FOLDER(DP_WXRENDER),
                                 VORN_FOLDER(DP_WXINVENTORY),  VORN_FOLDER(DP_TERMINALCHARTS),
                                 VORN_FOLDER(DP_TRAINING),     VORN_FOLDER(DP_TRAININGCOMMON),
                                 VORN_FOLDER(DP_USERTHEMES),   VORN_FOLDER(DP_UPDATECLIENT),
                                 VORN_FOLDER(DP_SMITHS),       VORN_FOLDER(DP_THEME2),
                                 VORN_FOLDER(DP_UTILITIES),    VORN_FOLDER(DP_XMDATAPATH),
                                 VORN_FOLDER(DP_XMTEXTDATA),   VORN_FOLDER(DP_DOWNLOADS),
                                 VORN_FOLDER(DP_DRAWINGTOOLS), VORN_FOLDER(DP_TERMINALCHARTS2)};

#undef VORN_FOLDER

bool SameWord(const std::string& a, const std::string& b)
{
    return lstrcmpiA(a.c_str(), b.c_str()) == 0;
}

} // namespace

std::string NameOfFolder(int path)
{
    for (const FolderName& each : kNames)
    {
        if (each.path == path)
        {
            return each.name;
        }
    }
    return "DP_PATH" + std::to_string(path);
}

int FolderNamed(const std::string& word)
{
    if (const auto number = ParseWhole(word))
    {
        return *number >= 0 && *number < DP_COUNT ? static_cast<int>(*number) : -1;
    }
    for (int path = 0; path < DP_COUNT; ++path)
    {
        const std::string name = NameOfFolder(path);
        if (SameWord(word, name) || SameWord(word, name.substr(3)))
        {
            return path;
        }
    }
    return -1;
}

} // namespace vorn::tool
