#include "apps/vorntool/core/ToolArguments.h"

#include <algorithm>
#include <sstream>

namespace vorn::tool
{

namespace
{

constexpr Option kCommonOptions[] = {
    {"json", nullptr, "print the result as JSON"},
    {"help", nullptr, "print this help"},
};

const Option* FindOption(std::span<const Option> options, std::string_view name)
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [name](const Option& option)
                                    {
                                        return name == option.name;
                                    });
    return found == options.end() ? nullptr : &*found;
}

const Option* FindOption(const Command& command, std::string_view name)
{
    const Option* const own = FindOption(command.options, name);
    return own != nullptr ? own : FindOption(CommonOptions(), name);
}

// The word for a value in the command's own help, without the marks of optional and repeated ones.
std::string NameOfValue(const Command& command, std::size_t index)
{
    std::istringstream words{std::string(command.arguments)};
    std::string word;
    for (std::size_t i = 0; i <= index; ++i)
    {
        words >> word;
    }
    std::erase_if(word,
                  [](char c)
                  {
                      return c == '[' || c == ']' || c == '.';
                  });
    return word;
}

class Parser
{
public:
    Parser(const Command& command, std::span<const std::string> words) : m_command(command), m_words(words)
    {
    }

    bool Run()
    {
        for (m_next = 0; m_next < m_words.size();)
        {
            const std::string& word = m_words[m_next++];
            const bool isOption = !m_onlyValues && word.starts_with("--");
            if (word == "--" && !m_onlyValues)
            {
                m_onlyValues = true;
            }
            else if (isOption && !TakeOption(word))
            {
                return false;
            }
            else if (!isOption)
            {
                m_call.values.push_back(word);
            }
        }
        return CheckNumberOfValues();
    }

    Invocation m_call;
    std::string m_reason;

private:
    bool Fail(std::string reason)
    {
        m_reason = std::move(reason);
        return false;
    }

    bool TakeOption(const std::string& word)
    {
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(2, equals == std::string::npos ? equals : equals - 2);
        const Option* const option = FindOption(m_command, name);
        if (option == nullptr)
        {
            return Fail("unknown option " + Quoted("--" + name));
        }
        if (option->value == nullptr)
        {
            m_call.options[name];
            return equals == std::string::npos || Fail("option " + Quoted("--" + name) + " takes no value");
        }
        if (equals != std::string::npos)
        {
            m_call.options[name] = word.substr(equals + 1);
            return true;
        }
        if (m_next == m_words.size())
        {
            return Fail("option " + Quoted("--" + name) + " needs a value " + option->value);
        }
        m_call.options[name] = m_words[m_next++];
        return true;
    }

    bool CheckNumberOfValues()
    {
        const std::size_t given = m_call.values.size();
        if (given < m_command.fewest)
        {
            return Fail(NameOfValue(m_command, given) + " is missing");
        }
        return given <= m_command.most || Fail(Quoted(m_call.values[m_command.most]) + " is one argument too many");
    }

    const Command& m_command;
    std::span<const std::string> m_words;
    std::size_t m_next = 0;
    bool m_onlyValues = false;
};

} // namespace

std::span<const Option> CommonOptions()
{
    return kCommonOptions;
}

bool AsksForHelp(std::string_view word)
{
    return word == "--help" || word == "-h" || word == "/?";
}

std::optional<Invocation> ParseArguments(const Command& command, std::span<const std::string> words,
                                         std::string& reason)
{
    const auto end = std::find(words.begin(), words.end(), "--");
    if (std::any_of(words.begin(), end, AsksForHelp))
    {
        Invocation help;
        help.options["help"];
        return help;
    }
    Parser parser(command, words);
    if (!parser.Run())
    {
        reason = parser.m_reason;
        return std::nullopt;
    }
    return parser.m_call;
}

} // namespace vorn::tool
