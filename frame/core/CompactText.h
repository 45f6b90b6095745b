#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace vorn
{

/// A text under construction that needs no memory while it is short. What passes the inline room moves to the heap.
class CompactText
{
public:
    /// Room for every position, course and time of ordinary precision.
    static constexpr std::size_t kInlineRoom = 48;

    void Append(char c)
    {
        Append(std::string_view(&c, 1));
    }

    void Append(std::string_view text)
    {
        if (m_size + text.size() > kInlineRoom)
            return AppendToHeap(text);
        std::memcpy(m_inline + m_size, text.data(), text.size());
        m_size += text.size();
    }

    std::string_view View() const
    {
        return m_heap.empty() ? std::string_view(m_inline, m_size) : std::string_view(m_heap);
    }

    std::string Text() const
    {
        return std::string(View());
    }

private:
    void AppendToHeap(std::string_view text)
    {
        if (m_heap.empty())
            m_heap.assign(m_inline, m_size);
        m_heap += text;
        m_size = kInlineRoom;
    }

    char m_inline[kInlineRoom];
    std::size_t m_size = 0;
    std::string m_heap;
};

} // namespace vorn
