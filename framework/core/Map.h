#pragma once

/// @file
/// Hash maps.
#include "framework/core/CollectionHelpers.h"
#include "framework/core/Object.h"

#include <vector>

namespace vorn
{
/// What all maps of the framework have in common. Keys are unique. The order of iteration is that of the table, not of
/// insertion; values may be changed and the entry last delivered may be removed while iterating. A null POSITION where
/// one is needed throws a CInvalidArgException*; short memory throws a CMemoryException*.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class MapBase : public CObject
{
public:
    /// One entry.
    struct CPair
    {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY keyValue) : key(keyValue), value()
        {
        }
    };

    /// @param nBlockSize accepted for compatibility; entries are allocated one by one.
    explicit MapBase([[maybe_unused]] INT_PTR nBlockSize = 10)
    {
    }
    ~MapBase() override
    {
        RemoveAll();
    }

    INT_PTR GetCount() const noexcept
    {
        return m_count;
    }
    INT_PTR GetSize() const noexcept
    {
        return m_count;
    }
    BOOL IsEmpty() const noexcept
    {
        return m_count == 0 ? TRUE : FALSE;
    }

    /// Copies the value of a key; FALSE, with `rValue` unchanged, when there is none. One hash, no allocation.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const
    {
        const Entry* entry = Find(key);
        if (entry == nullptr)
        {
            return FALSE;
        }
        rValue = entry->value;
        return TRUE;
    }
    /// The entry of a key, or null.
    const CPair* PLookup(ARG_KEY key) const
    {
        return Find(key);
    }
    CPair* PLookup(ARG_KEY key)
    {
        return Find(key);
    }
    /// The value of a key; an unknown key is entered with a default value.
    VALUE& operator[](ARG_KEY key)
    {
        const UINT hash = HashKey<ARG_KEY>(key);
        Entry* entry = Find(key, hash);
        return entry != nullptr ? entry->value : Insert(key, hash)->value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue)
    {
        VALUE value(newValue); // may be a value of this map, which the insertion below must not disturb
        (*this)[key] = std::move(value);
    }
    /// Removes a key; FALSE when there is none.
    BOOL RemoveKey(ARG_KEY key)
    {
        if (m_buckets.empty())
        {
            return FALSE;
        }
        for (Entry** link = &m_buckets[BucketOf(HashKey<ARG_KEY>(key))]; *link != nullptr; link = &(*link)->next)
        {
            if (CompareElements(&(*link)->key, &key))
            {
                const std::unique_ptr<Entry> ended(*link);
                *link = ended->next;
                --m_count;
                return TRUE;
            }
        }
        return FALSE;
    }
    void RemoveAll()
    {
        for (Entry* first : m_buckets)
        {
            while (first != nullptr)
            {
                const std::unique_ptr<Entry> ended(first);
                first = ended->next;
            }
        }
        m_buckets.clear();
        m_count = 0;
    }

    /// Where iteration begins, or null for an empty map.
    POSITION GetStartPosition() const noexcept
    {
        return PositionOf(FirstFrom(0));
    }
    /// Copies the entry at `rNextPosition`, which moves on, or to null after the last.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const
    {
        const Entry* entry = EntryAt(rNextPosition);
        rNextPosition = PositionOf(Next(entry));
        rKey = entry->key;
        rValue = entry->value;
    }
    const CPair* PGetFirstAssoc() const noexcept
    {
        return FirstFrom(0);
    }
    CPair* PGetFirstAssoc() noexcept
    {
        return FirstFrom(0);
    }
    /// The entry after `pAssoc`, or null.
    const CPair* PGetNextAssoc(const CPair* pAssoc) const
    {
        CheckIndex(pAssoc != nullptr);
        return Next(static_cast<const Entry*>(pAssoc));
    }
    CPair* PGetNextAssoc(const CPair* pAssoc)
    {
        CheckIndex(pAssoc != nullptr);
        return Next(static_cast<const Entry*>(pAssoc));
    }

    UINT GetHashTableSize() const noexcept
    {
        return m_tableSize;
    }
    /// Chooses the number of buckets (best a prime, some 20 % above the expected count); only while the map is empty.
    /// The table grows by itself when it becomes crowded. 0 chooses the default, 17.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE)
    {
        ASSERT(m_count == 0);
        if (m_count > 0)
        {
            return;
        }
        m_tableSize = hashSize > 0 ? hashSize : kDefaultTableSize;
        m_buckets.clear();
        if (bAllocNow)
        {
            AllocateBuckets(m_buckets, m_tableSize);
        }
    }

protected:
    struct Entry : CPair
    {
        Entry(ARG_KEY keyValue, UINT hashValue) : CPair(keyValue), hash(hashValue)
        {
        }
        UINT hash;
        Entry* next = nullptr;
    };

    Entry* Find(ARG_KEY key) const
    {
        return m_count > 0 ? Find(key, HashKey<ARG_KEY>(key)) : nullptr;
    }

private:
    static constexpr UINT kDefaultTableSize = 17;
    static constexpr UINT kCrowded = 4; // entries to a bucket

    static POSITION PositionOf(const Entry* entry) noexcept
    {
        return reinterpret_cast<POSITION>(const_cast<Entry*>(entry));
    }
    static const Entry* EntryAt(POSITION position)
    {
        CheckIndex(position != nullptr);
        return reinterpret_cast<const Entry*>(position);
    }
    static void AllocateBuckets(std::vector<Entry*>& buckets, UINT size)
    {
        try
        {
            buckets.assign(size, nullptr);
        }
        catch (const std::exception&)
        {
            AfxThrowMemoryException();
        }
    }

    std::size_t BucketOf(UINT hash) const noexcept
    {
        return hash % m_tableSize;
    }

    Entry* Find(ARG_KEY key, UINT hash) const
    {
        Entry* entry = m_buckets.empty() ? nullptr : m_buckets[BucketOf(hash)];
        while (entry != nullptr && (entry->hash != hash || !CompareElements(&entry->key, &key)))
        {
            entry = entry->next;
        }
        return entry;
    }

    Entry* Insert(ARG_KEY key, UINT hash)
    {
        std::unique_ptr<Entry> entry = MakeNode<Entry>(key, hash);
        MakeRoom();
        Entry*& first = m_buckets[BucketOf(hash)];
        entry->next = first;
        first = entry.release(); // the table owns the entries
        ++m_count;
        return first;
    }

    void MakeRoom()
    {
        if (m_buckets.empty())
        {
            AllocateBuckets(m_buckets, m_tableSize);
        }
        else if (static_cast<UINT>(m_count) / kCrowded >= m_tableSize && m_tableSize < 0x10000000U)
        {
            Rehash(m_tableSize * kCrowded + 1);
        }
    }

    void Rehash(UINT tableSize)
    {
        std::vector<Entry*> buckets;
        AllocateBuckets(buckets, tableSize);
        for (Entry* entry : m_buckets)
        {
            while (entry != nullptr)
            {
                Entry* next = entry->next;
                Entry*& first = buckets[entry->hash % tableSize];
                entry->next = first;
                first = entry;
                entry = next;
            }
        }
        m_buckets.swap(buckets);
        m_tableSize = tableSize;
    }

    Entry* FirstFrom(std::size_t bucket) const noexcept
    {
        while (bucket < m_buckets.size() && m_buckets[bucket] == nullptr)
        {
            ++bucket;
        }
        return bucket < m_buckets.size() ? m_buckets[bucket] : nullptr;
    }

    Entry* Next(const Entry* entry) const noexcept
    {
        return entry->next != nullptr ? entry->next : FirstFrom(BucketOf(entry->hash) + 1);
    }

    std::vector<Entry*> m_buckets;
    UINT m_tableSize = kDefaultTableSize;
    INT_PTR m_count = 0;
};

/// A map whose keys are texts.
template <class VALUE, class ARG_VALUE>
class TextMapBase : public MapBase<CString, LPCSTR, VALUE, ARG_VALUE>
{
public:
    using MapBase<CString, LPCSTR, VALUE, ARG_VALUE>::MapBase;

    /// Points `rKey` to the map's own copy of a key; FALSE when there is none.
    BOOL LookupKey(LPCSTR key, LPCSTR& rKey) const
    {
        const auto* entry = this->PLookup(key);
        if (entry == nullptr)
        {
            return FALSE;
        }
        rKey = entry->key;
        return TRUE;
    }
};
} // namespace vorn

/// A hash map of any copyable types. See vorn::MapBase for its operations and errors.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public vorn::MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>
{
public:
    using vorn::MapBase<KEY, ARG_KEY, VALUE, ARG_VALUE>::MapBase;
};

#define VORN_DECLARE_MAP(class_name, ...)                                                                              \
    class HOSTFRAMEWORK_API class_name : public __VA_ARGS__                                                            \
    {                                                                                                                  \
        DECLARE_DYNCREATE(class_name)                                                                                  \
        explicit class_name(INT_PTR nBlockSize = 10) : __VA_ARGS__(nBlockSize)                                         \
        {                                                                                                              \
        }                                                                                                              \
    };

/// Maps of the types that are used most. Pointers are not owned.
VORN_DECLARE_MAP(CMapStringToString, vorn::TextMapBase<CString, LPCSTR>)
VORN_DECLARE_MAP(CMapStringToPtr, vorn::TextMapBase<void*, void*>)
VORN_DECLARE_MAP(CMapStringToOb, vorn::TextMapBase<CObject*, CObject*>)
VORN_DECLARE_MAP(CMapPtrToPtr, vorn::MapBase<void*, void*, void*, void*>)
VORN_DECLARE_MAP(CMapPtrToWord, vorn::MapBase<void*, void*, WORD, WORD>)
VORN_DECLARE_MAP(CMapWordToPtr, vorn::MapBase<WORD, WORD, void*, void*>)
VORN_DECLARE_MAP(CMapWordToOb, vorn::MapBase<WORD, WORD, CObject*, CObject*>)
