#pragma once

/// @file
/// Growing arrays.
#include "framework/core/CollectionHelpers.h"
#include "framework/core/Object.h"

#include <algorithm>
#include <limits>

namespace vorn
{
/// What all arrays of the framework have in common. Indices run from 0 to GetUpperBound(); any other throws a
/// CInvalidArgException*, as does a negative size or count. A size that cannot exist or short memory throws a
/// CMemoryException*. Arguments may be elements of the same array. Copying is by Copy() and Append().
template <class TYPE, class ARG_TYPE>
class ArrayBase : public CObject
{
public:
    ArrayBase() = default;
    ~ArrayBase() override
    {
        RemoveAll();
    }

    INT_PTR GetSize() const noexcept
    {
        return m_size;
    }
    INT_PTR GetCount() const noexcept
    {
        return m_size;
    }
    BOOL IsEmpty() const noexcept
    {
        return m_size == 0 ? TRUE : FALSE;
    }
    /// Highest index, -1 when empty.
    INT_PTR GetUpperBound() const noexcept
    {
        return m_size - 1;
    }

    /// Cuts the array or fills it up with default elements.
    /// @param nGrowBy least number of elements to make room for at each growth; -1 keeps the present value, 0 lets the
    /// array choose.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1)
    {
        CheckIndex(nNewSize >= 0);
        m_growBy = nGrowBy >= 0 ? nGrowBy : m_growBy;
        if (nNewSize == 0)
        {
            FreeAll();
        }
        else if (nNewSize < m_size)
        {
            DestructElements<TYPE>(m_data + nNewSize, m_size - nNewSize);
            m_size = nNewSize;
        }
        else
        {
            Reserve(nNewSize);
            std::uninitialized_value_construct_n(m_data + m_size, nNewSize - m_size);
            m_size = nNewSize;
        }
    }

    /// Gives back memory beyond the present size.
    void FreeExtra()
    {
        if (m_size == 0)
        {
            FreeAll();
        }
        else if (m_size < m_capacity)
        {
            Relocate(m_size);
        }
    }

    void RemoveAll()
    {
        FreeAll();
    }

    const TYPE& GetAt(INT_PTR nIndex) const
    {
        CheckIndex(IsInside(nIndex));
        return m_data[nIndex];
    }
    TYPE& GetAt(INT_PTR nIndex)
    {
        return ElementAt(nIndex);
    }
    TYPE& ElementAt(INT_PTR nIndex)
    {
        CheckIndex(IsInside(nIndex));
        return m_data[nIndex];
    }
    const TYPE& ElementAt(INT_PTR nIndex) const
    {
        return GetAt(nIndex);
    }
    TYPE& operator[](INT_PTR nIndex)
    {
        return ElementAt(nIndex);
    }
    const TYPE& operator[](INT_PTR nIndex) const
    {
        return GetAt(nIndex);
    }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement)
    {
        ElementAt(nIndex) = newElement;
    }

    /// The elements in one piece; null when there are none. Valid until the array changes its size.
    TYPE* GetData() noexcept
    {
        return m_data;
    }
    const TYPE* GetData() const noexcept
    {
        return m_data;
    }

    /// Sets an element, growing the array with default elements when `nIndex` is beyond its end.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
    {
        CheckIndex(nIndex >= 0);
        TYPE element(newElement);
        if (nIndex >= m_size)
        {
            SetSize(CheckedSize(nIndex, 1));
        }
        m_data[nIndex] = std::move(element);
    }

    /// Appends an element and returns its index.
    INT_PTR Add(ARG_TYPE newElement)
    {
        TYPE element(newElement);
        Reserve(CheckedSize(m_size, 1));
        new (m_data + m_size) TYPE(std::move(element));
        return m_size++;
    }

    /// Inserts `nCount` copies before `nIndex`; beyond the end the gap is filled with default elements.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1)
    {
        CheckIndex(nIndex >= 0 && nCount > 0);
        const TYPE element(newElement);
        OpenGap(nIndex, nCount);
        std::fill_n(m_data + nIndex, nCount, element);
    }

    /// Inserts all elements of another array (or of this one) before `nStartIndex`.
    void InsertAt(INT_PTR nStartIndex, const ArrayBase* pNewArray)
    {
        CheckIndex(pNewArray != nullptr && nStartIndex >= 0);
        ArrayBase copy;
        copy.Copy(*pNewArray);
        if (copy.m_size > 0)
        {
            OpenGap(nStartIndex, copy.m_size);
            std::move(copy.m_data, copy.m_data + copy.m_size, m_data + nStartIndex);
        }
    }

    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1)
    {
        CheckIndex(nIndex >= 0 && nCount >= 0 && nIndex <= m_size && nCount <= m_size - nIndex);
        std::move(m_data + nIndex + nCount, m_data + m_size, m_data + nIndex);
        DestructElements<TYPE>(m_data + m_size - nCount, nCount);
        m_size -= nCount;
    }

    /// Appends another array's elements; returns the index of the first one. Appending an array to itself throws.
    INT_PTR Append(const ArrayBase& src)
    {
        CheckIndex(this != &src);
        const INT_PTR first = m_size;
        SetSize(CheckedSize(m_size, src.m_size));
        CopyElements<TYPE>(m_data + first, src.m_data, src.m_size);
        return first;
    }

    /// Replaces the elements by those of another array.
    void Copy(const ArrayBase& src)
    {
        if (this != &src)
        {
            SetSize(src.m_size);
            CopyElements<TYPE>(m_data, src.m_data, src.m_size);
        }
    }

private:
    static constexpr INT_PTR kMaxSize = std::numeric_limits<INT_PTR>::max() / static_cast<INT_PTR>(sizeof(TYPE));

    bool IsInside(INT_PTR index) const noexcept
    {
        return index >= 0 && index < m_size;
    }

    static INT_PTR CheckedSize(INT_PTR size, INT_PTR more)
    {
        if (size > kMaxSize - more)
        {
            AfxThrowMemoryException();
        }
        return size + more;
    }

    // Without a given step the room grows by half, so that adding one by one stays linear.
    INT_PTR RoomFor(INT_PTR size) const noexcept
    {
        const INT_PTR step = m_growBy > 0 ? m_growBy : std::max<INT_PTR>(4, m_size / 2);
        const INT_PTR ahead = m_capacity > kMaxSize - step ? kMaxSize : m_capacity + step;
        return m_capacity == 0 && m_growBy == 0 ? std::max<INT_PTR>(size, 4) : std::max(size, ahead);
    }

    void Reserve(INT_PTR size)
    {
        if (size > m_capacity)
        {
            Relocate(RoomFor(CheckedSize(size, 0)));
        }
    }

    void Relocate(INT_PTR capacity)
    {
        TYPE* data = Allocate(capacity);
        std::uninitialized_move_n(m_data, m_size, data);
        const INT_PTR size = m_size;
        FreeAll();
        m_data = data;
        m_size = size;
        m_capacity = capacity;
    }

    static TYPE* Allocate(INT_PTR capacity)
    {
        try
        {
            return std::allocator<TYPE>().allocate(static_cast<std::size_t>(capacity));
        }
        catch (const std::bad_alloc&)
        {
            AfxThrowMemoryException();
        }
    }

    void FreeAll()
    {
        if (m_data != nullptr)
        {
            DestructElements<TYPE>(m_data, m_size);
            std::allocator<TYPE>().deallocate(m_data, static_cast<std::size_t>(m_capacity));
        }
        m_data = nullptr;
        m_size = 0;
        m_capacity = 0;
    }

    void OpenGap(INT_PTR index, INT_PTR count)
    {
        const INT_PTR oldSize = m_size;
        SetSize(CheckedSize(std::max(index, oldSize), count));
        if (index < oldSize)
        {
            std::move_backward(m_data + index, m_data + oldSize, m_data + oldSize + count);
        }
    }

    TYPE* m_data = nullptr;
    INT_PTR m_size = 0;
    INT_PTR m_capacity = 0;
    INT_PTR m_growBy = 0;
};
} // namespace vorn

/// A growing array of any copyable type. See vorn::ArrayBase for its operations and errors.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public vorn::ArrayBase<TYPE, ARG_TYPE>
{
};

#define VORN_DECLARE_ARRAY(class_name, type, argument)                                                                 \
    class HOSTFRAMEWORK_API class_name : public vorn::ArrayBase<type, argument>                                        \
    {                                                                                                                  \
        DECLARE_DYNCREATE(class_name)                                                                                  \
    };

/// Arrays of the types that are used most. CPtrArray and CObArray do not own what their elements point to.
VORN_DECLARE_ARRAY(CByteArray, BYTE, BYTE)
VORN_DECLARE_ARRAY(CWordArray, WORD, WORD)
VORN_DECLARE_ARRAY(CDWordArray, DWORD, DWORD)
VORN_DECLARE_ARRAY(CUIntArray, UINT, UINT)
VORN_DECLARE_ARRAY(CPtrArray, void*, void*)
VORN_DECLARE_ARRAY(CObArray, CObject*, CObject*)
VORN_DECLARE_ARRAY(CStringArray, CString, const CString&)
