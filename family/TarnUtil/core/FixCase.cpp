#include "family/TarnUtil/core/FixCase.h"

namespace
{

bool IsUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool IsLower(char c)
{
    return c >= 'a' && c <= 'z';
}

// Whether a letter after this character belongs to the same word.
bool ContinuesWord(char c)
{
    return IsUpper(c) || IsLower(c) || (c >= '0' && c <= '9') || c == '\'';
}

char Upper(char c)
{
    return IsLower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

char Lower(char c)
{
    return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

void FixCase(char* text)
{
    if (text == nullptr)
    {
        return;
    }
    bool inWord = false;
    for (char* c = text; *c != '\0'; ++c)
    {
        *c = inWord ? Lower(*c) : Upper(*c);
        inWord = ContinuesWord(*c);
    }
}
