#pragma once

#include "frame/core/Export.h"

/// A zero-ended character array on the heap, owned by the object, or null. The object is one pointer, to which it
/// converts; hosts use it where a plain character pointer is wanted. Indexing and offsets are not checked.
///
/// Assignment differs from construction, and hosts rely on it: a copy is made by the copy constructor only. After `a =
/// b` both have the same array, which is released when the last of them lets go of it; the array that `a` had before is
/// abandoned, never released. Texts are set by SetString() and appended by `+=`, both of which give the object an array
/// of its own. Where memory is short, constructors and Resize() leave null and the rest change nothing.
class VORNCOMMON_API StringBuffer
{
public:
    /// `size` bytes, all zero; null for a size below 1.
    explicit StringBuffer(long size);

    /// A copy of the text; null for null.
    StringBuffer(const char* text);
    StringBuffer(const StringBuffer& other);
    ~StringBuffer();

    /// A text that is not empty leaves an empty text in a new array as long as the text; the old array is abandoned. A
    /// null or empty text empties the array at hand.
    StringBuffer& operator=(const char* text);

    /// Takes the other's pointer; the old array is abandoned.
    StringBuffer& operator=(const StringBuffer& other);

    /// Appends, in a new array. A null text empties the buffer, an empty one changes nothing. The text may be the
    /// buffer's own.
    StringBuffer& operator+=(const char* text);
    StringBuffer& operator+=(const StringBuffer& other);

    /// Empties the array at hand, or makes one of one byte.
    void Empty();

    /// Null or an empty text.
    bool IsEmpty() const;

    /// An array of `size` bytes (1 at least), all zero, in place of the old one.
    void Resize(int size);

    /// The first `maxLength` characters of the text, or fewer where it ends before; nothing beyond them is looked at.
    /// With a null text or a negative `maxLength` as assignment.
    void SetString(const char* text, int maxLength);

    operator char*()
    {
        return m_text;
    }
    char& operator[](int index)
    {
        return m_text[index];
    }
    char operator[](int index) const
    {
        return m_text[index];
    }
    /// The pointer `offset` characters before the array.
    char* operator-(int offset)
    {
        return m_text - offset;
    }

private:
    void Replace(char* text);

    char* m_text = nullptr;
};

static_assert(sizeof(StringBuffer) == sizeof(char*), "hosts keep it where a pointer stands");
