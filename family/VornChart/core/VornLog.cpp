#include "family/VornChart/core/VornLog.h"

#include <climits>
#include <cstring>
#include <exception>
#include <new>

namespace
{

constexpr std::string_view kLineEnd = "\r\n";

} // namespace

VornLog* VornLog::mpSingleInst = nullptr;

VornLog::VornLog() = default;

VornLog::VornLog(const VornLog& other)
    : mDisplayLevel(other.mDisplayLevel), mAltDisplayLevel(other.mAltDisplayLevel), m_text(other.m_text)
{
}

VornLog& VornLog::operator=(const VornLog& other)
{
    m_text = other.m_text;
    mDisplayLevel = other.mDisplayLevel;
    mAltDisplayLevel = other.mAltDisplayLevel;
    return *this;
}

VornLog::~VornLog() = default;

int VornLog::GetLog(char*& text)
{
    text = nullptr;
    if (m_text.size() >= INT_MAX)
    {
        return -1;
    }
    // The interface hands out an array that the caller deletes.
    text = new (std::nothrow) char[m_text.size() + 1];
    if (text == nullptr)
    {
        return -1;
    }
    std::memcpy(text, m_text.c_str(), m_text.size() + 1);
    return static_cast<int>(m_text.size());
}

bool VornLog::InitLog(const char* file)
{
    if (file == nullptr || *file == '\0')
    {
        return false;
    }
    // Binary: the line ends are the log's own.
    std::FILE* const opened = std::fopen(file, "ab");
    if (opened == nullptr)
    {
        return false;
    }
    m_file.reset(opened);
    return true;
}

void VornLog::LogMsg(const char* text, LogStatus)
{
    if (text != nullptr)
    {
        Add(text);
    }
}

void VornLog::LogMsg(const std::string& text, LogStatus)
{
    Add(text);
}

void VornLog::Add(std::string_view text)
{
    if (m_file != nullptr)
    {
        std::fwrite(text.data(), 1, text.size(), m_file.get());
        std::fwrite(kLineEnd.data(), 1, kLineEnd.size(), m_file.get());
        std::fflush(m_file.get());
    }
    const std::size_t before = m_text.size();
    try
    {
        m_text.append(text);
        m_text.append(kLineEnd);
    }
    catch (const std::exception&)
    {
        // A log that is out of memory must not end the program that it reports on; the file has the message.
        m_text.resize(before);
    }
}

void VornLog::ClearLog()
{
    m_text.clear();
}

void VornLog::SetDisplayThresholds(LogStatus normal, LogStatus alternative)
{
    mDisplayLevel = normal;
    mAltDisplayLevel = alternative;
}

VornLog* VornLog::Shared()
{
    return mpSingleInst;
}
