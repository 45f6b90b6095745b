#include "apps/vorntool/Applications.h"

#include "apps/vorntool/TextConversion.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

constexpr const char* kKnown[] = {"Aerolune", "VornView", "Glasspad", "Global", "Installers"};

// Names are compared exactly where settings are shared, so a known name is brought to its own spelling.
CString KnownSpelling(const CString& name)
{
    const auto* const known = std::find_if(std::begin(kKnown), std::end(kKnown),
                                           [&](const char* each)
                                           {
                                               return name.CompareNoCase(each) == 0;
                                           });
    return known == std::end(kKnown) ? name : CString(*known);
}

void BecomeApplication(const CString& name)
{
    static const CString kept = name;
    static CWinApp application(kept);
}

} // namespace

std::optional<CString> ApplicationOf(const Command& command, const Invocation& call, Output& output)
{
    const std::string given = call.ValueOf(kAppOption.name, kKnown[0]);
    const std::optional<CString> name = LibraryFromUtf8(given);
    if (!name || name->IsEmpty() || name->Find('\\') >= 0)
    {
        ReportError(output, command, Quoted(given) + " cannot be the name of an application");
        return std::nullopt;
    }
    return KnownSpelling(*name);
}

std::optional<CString> ActAsApplication(const Command& command, const Invocation& call, Output& output)
{
    const std::optional<CString> application = ApplicationOf(command, call, output);
    if (application)
    {
        BecomeApplication(*application);
    }
    return application;
}

int SettingsIndexOf(const CString& application)
{
    return AppRegMgr::Instance()->AddApp(application);
}

bool IsShared(const CString& application)
{
    return application == "Global" || application == "Installers";
}

} // namespace vorn::tool
