#pragma once

#include <VornCommon.h>

#include <map>
#include <string>
#include <utility>

namespace vorn::tool
{

/// The host application that the library asks for its settings: those stored for the application that the tool acts as,
/// except for choices made on the command line, which are never stored. To be made after ActAsApplication().
class ToolHost : public VornCommonApp
{
public:
    ToolHost();
    ~ToolHost() override;
    ToolHost(const ToolHost&) = delete;
    ToolHost& operator=(const ToolHost&) = delete;

    /// Answers with @p value from now on, whatever is stored.
    void Choose(const char* section, const char* key, int value);

    int GetSettingInt(const char* section, const char* key, int defaultValue) override;

private:
    std::map<std::pair<std::string, std::string>, int> m_choices;
};

} // namespace vorn::tool
