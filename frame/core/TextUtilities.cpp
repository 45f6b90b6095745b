#include "frame/core/TextUtilities.h"

#include "family/TarnUtil/core/FixCase.h"
#include "frame/core/Match.h"
#include "frame/core/Respell.h"
#include "frame/core/Split.h"
#include "frame/core/StringViews.h"

#include <cstdlib>
#include <new>

namespace
{

/// Some bit of the runtime's random numbers that does not repeat soon.
int Chance()
{
    constexpr int someBit = 0x10;
    return std::rand() & someBit;
}

/// Keeps a part of the text. The part is copied before the text lets go of its characters.
void Keep(CString& text, std::string_view part)
{
    if (part.size() != static_cast<std::size_t>(text.GetLength()))
        text = vorn::ToCString(part);
}

} // namespace

int SplitString(const char* text, const char* separators, CStringArray& parts, bool trim, bool skipEmpty)
{
    const std::size_t count = vorn::SplitText(vorn::ViewOf(text), vorn::ViewOf(separators), {trim, skipEmpty},
                                              [&parts](std::string_view piece)
                                              {
                                                  parts.Add(vorn::ToCString(piece));
                                              });
    return static_cast<int>(count);
}

void TrimBoth(CString& text)
{
    Keep(text, vorn::TrimBoth(vorn::ViewOf(text)));
}

bool MatchStrings(CString pattern, CString text, bool caseSensitive, bool exact)
{
    return vorn::MatchText(vorn::ViewOf(pattern), vorn::ViewOf(text), {caseSensitive, exact});
}

void RemoveAfterFirstSpace(CString& text)
{
    Keep(text, vorn::FirstWord(vorn::ViewOf(text)));
}

CString FixCase(const char* text)
{
    CString copy(text);
    return FixCase(copy);
}

CString& FixCase(CString& text)
{
    const int length = text.GetLength();
    FixCase(text.GetBuffer());
    text.ReleaseBuffer(length);
    return text;
}

CString ConvertTehString(const char* text)
{
    return vorn::ToCString(vorn::Respell(vorn::ViewOf(text), Chance));
}

void FreeObjects(CPtrArray* objects)
{
    if (objects == nullptr)
        return;
    for (INT_PTR i = 0; i < objects->GetSize(); ++i)
        ::operator delete(objects->GetAt(i));
    objects->RemoveAll();
}
