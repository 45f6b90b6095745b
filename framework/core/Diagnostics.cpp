#include "framework/core/Diagnostics.h"

#include "framework/core/BaseTypes.h"
#include "framework/core/Object.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace
{
void WriteDiagnostic(const char* text)
{
#ifdef _WIN32
    OutputDebugStringA(text);
#endif
    std::fputs(text, stderr);
}
} // namespace

void AfxTrace(const char* format, ...)
{
    std::array<char, 1024> text{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    WriteDiagnostic(text.data());
}

void AfxAssertFailed(const char* expression, const char* file, int line)
{
    AfxTrace("%s(%d): assertion failed: %s\n", file, line, expression);
    std::abort();
}

void AfxAssertValidObject(const CObject* object, const char* file, int line)
{
    if (object == nullptr)
    {
        AfxAssertFailed("object != nullptr", file, line);
    }
    object->AssertValid();
}
