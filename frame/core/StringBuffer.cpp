#include "frame/core/StringBuffer.h"

#include "frame/core/SharedArrays.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>

namespace
{

using Array = std::unique_ptr<char[]>;

/// Zeroed; null when memory is short.
Array MakeArray(std::size_t size)
{
    return Array(new (std::nothrow) char[size]());
}

/// A zero-ended copy of two texts, one behind the other.
Array Joined(std::string_view first, std::string_view second)
{
    Array array = MakeArray(first.size() + second.size() + 1);
    if (array)
    {
        first.copy(array.get(), first.size());
        second.copy(array.get() + first.size(), second.size());
    }
    return array;
}

std::string_view TextOf(const char* text)
{
    return text != nullptr ? std::string_view(text) : std::string_view();
}

} // namespace

StringBuffer::StringBuffer(long size) : m_text(size > 0 ? MakeArray(static_cast<std::size_t>(size)).release() : nullptr)
{
}

StringBuffer::StringBuffer(const char* text) : m_text(text != nullptr ? Joined(text, {}).release() : nullptr)
{
}

StringBuffer::StringBuffer(const StringBuffer& other) : StringBuffer(static_cast<const char*>(other.m_text))
{
}

StringBuffer::~StringBuffer()
{
    Replace(nullptr);
}

StringBuffer& StringBuffer::operator=(const char* text)
{
    const std::size_t length = TextOf(text).size();
    if (length == 0)
    {
        Empty();
        return *this;
    }
    Array array = MakeArray(length + 1);
    if (array)
    {
        vorn::RemoveHolder(m_text);
        m_text = array.release();
    }
    return *this;
}

StringBuffer& StringBuffer::operator=(const StringBuffer& other)
{
    if (this == &other || m_text == other.m_text || !vorn::AddHolder(other.m_text))
        return *this;
    vorn::RemoveHolder(m_text);
    m_text = other.m_text;
    return *this;
}

StringBuffer& StringBuffer::operator+=(const char* text)
{
    if (text == nullptr)
        Empty();
    else if (*text != '\0')
    {
        Array array = Joined(TextOf(m_text), text);
        if (array)
            Replace(array.release());
    }
    return *this;
}

StringBuffer& StringBuffer::operator+=(const StringBuffer& other)
{
    return *this += static_cast<const char*>(other.m_text);
}

void StringBuffer::Empty()
{
    if (m_text != nullptr)
        *m_text = '\0';
    else
        m_text = MakeArray(1).release();
}

bool StringBuffer::IsEmpty() const
{
    return m_text == nullptr || *m_text == '\0';
}

void StringBuffer::Resize(int size)
{
    Replace(MakeArray(static_cast<std::size_t>(std::max(size, 1))).release());
}

void StringBuffer::SetString(const char* text, int maxLength)
{
    if (text == nullptr || maxLength < 0)
    {
        *this = text;
        return;
    }
    const auto most = static_cast<std::size_t>(maxLength);
    const void* const end = std::memchr(text, '\0', most);
    const std::size_t length = end != nullptr ? static_cast<std::size_t>(static_cast<const char*>(end) - text) : most;
    Array array = Joined({text, length}, {});
    if (array)
        Replace(array.release());
}

void StringBuffer::Replace(char* text)
{
    if (vorn::RemoveHolder(m_text))
        Array(m_text).reset();
    m_text = text;
}
