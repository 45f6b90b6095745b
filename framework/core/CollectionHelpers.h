#pragma once

/// @file
/// The functions by which the collection templates hash, compare, copy and destroy their elements. A user of
/// the templates may specialise them for own types.
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"
#include "framework/core/Exception.h"

#include <cstdint>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#ifndef AFXAPI
/// Calling convention of the helper functions; here the compiler's own.
#define AFXAPI
#endif

namespace vorn
{
struct PositionTag;

/// Hash of a zero-ended text (32-bit FNV-1a); null counts as empty.
inline UINT HashText(const char* text) noexcept
{
    std::uint32_t hash = 2166136261U;
    for (; text != nullptr && *text != '\0'; ++text)
    {
        hash = (hash ^ static_cast<unsigned char>(*text)) * 16777619U;
    }
    return hash;
}

/// Hash of a number; all 64 bits take part.
inline UINT HashNumber(std::uint64_t number) noexcept
{
    return static_cast<UINT>((number * 0x9E3779B97F4A7C15ULL) >> 32);
}

template <class T>
inline constexpr bool kHasNoHash = false;

inline void CheckIndex(bool isInside)
{
    if (!isInside)
    {
        AfxThrowInvalidArgException();
    }
}

/// Makes one object on the heap; short memory throws the memory exception.
template <class Node, class... Arguments>
std::unique_ptr<Node> MakeNode(Arguments&&... arguments)
{
    try
    {
        return std::make_unique<Node>(std::forward<Arguments>(arguments)...);
    }
    catch (const std::bad_alloc&)
    {
        AfxThrowMemoryException();
    }
}
} // namespace vorn

/// A place in a list or map; null is "none".
using POSITION = vorn::PositionTag*;

/// Hash of a key: texts by their characters, numbers and pointers by value. Specialise it for other types.
template <class ARG_KEY>
UINT HashKey(ARG_KEY key)
{
    using Key = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::is_convertible_v<const Key&, const char*>)
    {
        return vorn::HashText(key);
    }
    else if constexpr (std::is_pointer_v<Key>)
    {
        return vorn::HashNumber(reinterpret_cast<std::uintptr_t>(key));
    }
    else if constexpr (std::is_integral_v<Key> || std::is_enum_v<Key>)
    {
        return vorn::HashNumber(static_cast<std::uint64_t>(key));
    }
    else
    {
        static_assert(vorn::kHasNoHash<Key>, "specialise HashKey for this key type");
        return 0;
    }
}

/// Whether an element equals what is looked for.
template <class TYPE, class ARG_TYPE>
BOOL CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2 ? TRUE : FALSE;
}

/// Copies `nCount` elements by assignment.
template <class TYPE>
void CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
    {
        pDest[i] = pSrc[i];
    }
}

/// Ends the life of `nCount` elements of an array.
template <class TYPE>
void DestructElements(TYPE* pElements, INT_PTR nCount)
{
    std::destroy_n(pElements, nCount);
}
