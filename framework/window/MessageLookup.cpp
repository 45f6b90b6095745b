#include "framework/window/MessageLookup.h"

namespace vorn
{

namespace
{

static_assert(sizeof(void*) == 4, "a cache slot holds a message and a 32-bit entry address in one word");

std::atomic<long> searchCount = 0;

bool IsCtlColor(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

bool Matches(const AFX_MSGMAP_ENTRY& entry, UINT message)
{
    if (entry.pnRegisteredCode)
    {
        return *entry.pnRegisteredCode == message && message >= AFX_REGISTERED_MESSAGE;
    }
    return entry.nMessage == message || (entry.nMessage == AFX_WM_CTLCOLOR && IsCtlColor(message)) ||
           (entry.nMessage == WM_REFLECT_BASE + AFX_WM_CTLCOLOR && IsCtlColor(message - WM_REFLECT_BASE));
}

const AFX_MSGMAP* BaseOf(const AFX_MSGMAP* map)
{
    return map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr;
}

const AFX_MSGMAP_ENTRY* Search(const AFX_MSGMAP* map, UINT message)
{
    searchCount.fetch_add(1, std::memory_order_relaxed);
    for (; map; map = BaseOf(map))
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry)
        {
            if (Matches(*entry, message))
            {
                return entry;
            }
        }
    }
    return nullptr;
}

std::atomic<std::uint64_t>& SlotOf(AfxMessageMapCache& cache, UINT message)
{
    return cache.slots[(message ^ (message >> 6)) % AfxMessageMapCache::kSlots];
}

bool MatchesCode(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code)
{
    constexpr UINT kUpdate = static_cast<UINT>(CN_UPDATE_COMMAND_UI);
    const bool isCommand = message == WM_COMMAND || message == WM_REFLECT_BASE + WM_COMMAND;
    if (isCommand && (code == kUpdate || entry.nCode == kUpdate))
    {
        return entry.nCode == code;
    }
    return LOWORD(entry.nCode) == LOWORD(code);
}

} // namespace

const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message)
{
    // The variable of a registered message may get its number after such a message went by.
    if (message >= AFX_REGISTERED_MESSAGE)
    {
        return Search(map, message);
    }
    // An empty slot is all zero, which reads as "WM_NULL: no entry"; message numbers are
    // kept plus one, so that it matches no message.
    auto& slot = SlotOf(*map->pCache, message);
    const std::uint64_t key = static_cast<std::uint64_t>(message) + 1;
    const std::uint64_t kept = slot.load(std::memory_order_acquire);
    if (kept >> 32 == key)
    {
        return reinterpret_cast<const AFX_MSGMAP_ENTRY*>(static_cast<std::uintptr_t>(kept));
    }
    const AFX_MSGMAP_ENTRY* entry = Search(map, message);
    slot.store(key << 32 | reinterpret_cast<std::uintptr_t>(entry), std::memory_order_release);
    return entry;
}

const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id)
{
    for (; map; map = BaseOf(map))
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfn; ++entry)
        {
            if (entry->nMessage == message && MatchesCode(*entry, message, code) && entry->nID <= id &&
                id <= entry->nLastID)
            {
                return entry;
            }
        }
    }
    return nullptr;
}

long MessageSearchCount()
{
    return searchCount.load(std::memory_order_relaxed);
}

} // namespace vorn
