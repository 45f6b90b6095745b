#include "apps/vorntool/StandardStreams.h"

#include "apps/vorntool/TextConversion.h"

namespace vorn::tool
{

namespace
{

// What a console takes in one call is limited.
constexpr DWORD kConsoleChunk = 8192;

bool WriteToConsole(HANDLE console, const std::wstring& text)
{
    for (std::size_t done = 0; done < text.size();)
    {
        const auto left = static_cast<DWORD>(std::min<std::size_t>(text.size() - done, kConsoleChunk));
        DWORD written = 0;
        if (WriteConsoleW(console, text.data() + done, left, &written, nullptr) == FALSE || written == 0)
        {
            return false;
        }
        done += written;
    }
    return true;
}

bool WriteToFile(HANDLE file, const std::string& text)
{
    for (std::size_t done = 0; done < text.size();)
    {
        DWORD written = 0;
        const auto left = static_cast<DWORD>(text.size() - done);
        if (WriteFile(file, text.data() + done, left, &written, nullptr) == FALSE || written == 0)
        {
            return false;
        }
        done += written;
    }
    return true;
}

bool WriteStream(DWORD which, const std::string& text)
{
    const HANDLE stream = GetStdHandle(which);
    if (text.empty() || stream == nullptr || stream == INVALID_HANDLE_VALUE)
    {
        return text.empty();
    }
    DWORD mode = 0;
    const bool isConsole = GetConsoleMode(stream, &mode) != FALSE;
    return isConsole ? WriteToConsole(stream, WideFromUtf8(text)) : WriteToFile(stream, text);
}

} // namespace

bool WriteToStandardStreams(const Output& output)
{
    const bool written = WriteStream(STD_OUTPUT_HANDLE, output.text);
    WriteStream(STD_ERROR_HANDLE, output.errors);
    return written;
}

} // namespace vorn::tool
