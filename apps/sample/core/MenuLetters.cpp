#include "apps/sample/core/MenuLetters.h"

#include <cctype>

namespace
{

char Lowered(char letter)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
}

bool IsLetter(char sign)
{
    return std::isalnum(static_cast<unsigned char>(sign)) != 0;
}

} // namespace

void MenuLetters::Take(std::string_view item)
{
    for (std::size_t at = 0; at + 1 < item.size(); ++at)
    {
        if (item[at] != '&')
            continue;
        ++at; // two of them are one that is shown
        if (item[at] != '&')
            m_taken.insert(Lowered(item[at]));
    }
}

std::string MenuLetters::ItemOf(std::string_view name)
{
    std::string item;
    bool chosen = false;
    for (const char sign : name)
    {
        if (!chosen && IsLetter(sign) && m_taken.insert(Lowered(sign)).second)
        {
            item += '&';
            chosen = true;
        }
        item += sign;
        if (sign == '&')
            item += sign;
    }
    return item;
}
