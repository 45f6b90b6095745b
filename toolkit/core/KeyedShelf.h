#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace vorn
{

/// Owns entries in the order of their coming and finds them in constant time by a hash of their keys. What the keys are
/// is known to the caller alone, who says which of the entries with a hash is the one.
template <class Entry>
class KeyedShelf
{
public:
    using Hash = std::uint32_t;

    KeyedShelf() : m_slots(kLeastSlots)
    {
    }

    std::size_t Size() const
    {
        return m_items.size();
    }

    /// The entry with this hash that matches(const Entry&) accepts; null without one.
    template <class Matches>
    Entry* Find(Hash hash, Matches matches) const
    {
        for (std::size_t place = Home(hash);; place = Next(place))
        {
            const Slot& slot = m_slots[place];
            if (slot.entry == nullptr || (slot.hash == hash && matches(std::as_const(*slot.entry))))
            {
                return slot.entry;
            }
        }
    }

    /// Puts an entry behind the others. Nothing changes when memory runs out, which throws.
    Entry& Add(Hash hash, std::unique_ptr<Entry> entry)
    {
        if (2 * (m_items.size() + 1) > m_slots.size())
        {
            std::vector<Slot> larger(2 * m_slots.size());
            m_slots.swap(larger);
            Index();
        }
        m_items.push_back({std::move(entry), hash});
        Enter(m_items.back());
        return *m_items.back().entry;
    }

    /// The entry that came last; null without one.
    const Entry* Newest() const
    {
        return m_items.empty() ? nullptr : m_items.back().entry.get();
    }

    /// Both need an entry.
    void RemoveNewest()
    {
        m_items.pop_back();
        Reindex();
    }
    void RemoveOldest()
    {
        m_items.erase(m_items.begin());
        Reindex();
    }

    void Clear()
    {
        m_items.clear();
        m_slots.resize(kLeastSlots);
        Reindex();
    }

private:
    static constexpr std::size_t kLeastSlots = 128; // a power of 2; at least half of them are empty

    struct Item
    {
        std::unique_ptr<Entry> entry;
        Hash hash;
    };
    struct Slot
    {
        Entry* entry = nullptr;
        Hash hash = 0;
    };

    std::size_t Home(Hash hash) const
    {
        return hash & (m_slots.size() - 1);
    }
    std::size_t Next(std::size_t place) const
    {
        return (place + 1) & (m_slots.size() - 1);
    }

    void Enter(const Item& item)
    {
        std::size_t place = Home(item.hash);
        while (m_slots[place].entry != nullptr)
        {
            place = Next(place);
        }
        m_slots[place] = {item.entry.get(), item.hash};
    }

    void Index()
    {
        for (const Item& item : m_items)
        {
            Enter(item);
        }
    }

    void Reindex()
    {
        m_slots.assign(m_slots.size(), Slot{});
        Index();
    }

    std::vector<Item> m_items;
    std::vector<Slot> m_slots;
};

} // namespace vorn
