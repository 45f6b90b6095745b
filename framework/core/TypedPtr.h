#pragma once

/// @file
/// Collections of pointers to one type, on top of those of untyped pointers.
#include "framework/core/Array.h"
#include "framework/core/List.h"
#include "framework/core/Map.h"

namespace vorn
{
/// A stored pointer seen as a pointer of its real type: reads and assigns like a TYPE.
template <class TYPE, class STORED>
class TypedReference
{
public:
    explicit TypedReference(STORED& stored) noexcept : m_stored(stored)
    {
    }
    operator TYPE() const noexcept
    {
        return static_cast<TYPE>(m_stored);
    }
    TYPE operator->() const noexcept
    {
        return static_cast<TYPE>(m_stored);
    }
    TypedReference& operator=(TYPE value) noexcept
    {
        m_stored = value;
        return *this;
    }
    TypedReference(const TypedReference&) = default;
    TypedReference& operator=(const TypedReference& other) noexcept
    {
        m_stored = other.m_stored;
        return *this;
    }

private:
    STORED& m_stored;
};

template <class ELEMENT>
using StoredType = std::remove_cvref_t<ELEMENT>;
} // namespace vorn

/// An array of `TYPE` (a pointer type) on top of CPtrArray or CObArray.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
    using Stored = vorn::StoredType<decltype(std::declval<BASE_CLASS&>().ElementAt(0))>;
    using Reference = vorn::TypedReference<TYPE, Stored>;

public:
    TYPE GetAt(INT_PTR nIndex) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex));
    }
    Reference ElementAt(INT_PTR nIndex)
    {
        return Reference(BASE_CLASS::ElementAt(nIndex));
    }
    void SetAt(INT_PTR nIndex, TYPE ptr)
    {
        BASE_CLASS::SetAt(nIndex, ptr);
    }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement)
    {
        BASE_CLASS::SetAtGrow(nIndex, newElement);
    }
    INT_PTR Add(TYPE newElement)
    {
        return BASE_CLASS::Add(newElement);
    }
    INT_PTR Append(const CTypedPtrArray& src)
    {
        return BASE_CLASS::Append(src);
    }
    void Copy(const CTypedPtrArray& src)
    {
        BASE_CLASS::Copy(src);
    }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, static_cast<Stored>(newElement), nCount);
    }
    void InsertAt(INT_PTR nStartIndex, const CTypedPtrArray* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
    TYPE operator[](INT_PTR nIndex) const
    {
        return GetAt(nIndex);
    }
    Reference operator[](INT_PTR nIndex)
    {
        return ElementAt(nIndex);
    }
};

/// A list of `TYPE` (a pointer type) on top of CPtrList or CObList.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize)
    {
    }
    TYPE GetHead() const
    {
        return static_cast<TYPE>(BASE_CLASS::GetHead());
    }
    TYPE GetTail() const
    {
        return static_cast<TYPE>(BASE_CLASS::GetTail());
    }
    TYPE RemoveHead()
    {
        return static_cast<TYPE>(BASE_CLASS::RemoveHead());
    }
    TYPE RemoveTail()
    {
        return static_cast<TYPE>(BASE_CLASS::RemoveTail());
    }
    POSITION AddHead(TYPE newElement)
    {
        return BASE_CLASS::AddHead(newElement);
    }
    POSITION AddTail(TYPE newElement)
    {
        return BASE_CLASS::AddTail(newElement);
    }
    void AddHead(CTypedPtrList* pNewList)
    {
        BASE_CLASS::AddHead(static_cast<BASE_CLASS*>(pNewList));
    }
    void AddTail(CTypedPtrList* pNewList)
    {
        BASE_CLASS::AddTail(static_cast<BASE_CLASS*>(pNewList));
    }
    TYPE GetNext(POSITION& rPosition) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition));
    }
    TYPE GetPrev(POSITION& rPosition) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition));
    }
    TYPE GetAt(POSITION position) const
    {
        return static_cast<TYPE>(BASE_CLASS::GetAt(position));
    }
    void SetAt(POSITION position, TYPE newElement)
    {
        BASE_CLASS::SetAt(position, newElement);
    }
    POSITION InsertBefore(POSITION position, TYPE newElement)
    {
        return BASE_CLASS::InsertBefore(position, newElement);
    }
    POSITION InsertAfter(POSITION position, TYPE newElement)
    {
        return BASE_CLASS::InsertAfter(position, newElement);
    }
};

/// A map with typed keys and values on top of one of the pointer maps; converts between `KEY`, `VALUE` and the base's.
template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
    using StoredValue = vorn::StoredType<decltype(std::declval<typename BASE_CLASS::CPair&>().value)>;
    using StoredKey = vorn::StoredType<decltype(std::declval<typename BASE_CLASS::CPair&>().key)>;
    using Reference = vorn::TypedReference<VALUE, StoredValue>;

public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize)
    {
    }
    BOOL Lookup(KEY key, VALUE& rValue) const
    {
        StoredValue value{};
        const BOOL found = BASE_CLASS::Lookup(key, value);
        if (found)
        {
            rValue = static_cast<VALUE>(value);
        }
        return found;
    }
    Reference operator[](KEY key)
    {
        return Reference(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue)
    {
        BASE_CLASS::SetAt(key, newValue);
    }
    BOOL RemoveKey(KEY key)
    {
        return BASE_CLASS::RemoveKey(key);
    }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        StoredKey key{};
        StoredValue value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = static_cast<KEY>(key);
        rValue = static_cast<VALUE>(value);
    }
};
