#include "frame/core/SharedArrays.h"

#include "framework/core/SpinLock.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <new>

// A plain chain without a destructor: static objects that hold an array may outlive everything here.

namespace vorn
{

namespace
{

struct SharedArray
{
    const char* array;
    int holders;
    SharedArray* next;
};

constinit std::atomic<SharedArray*> g_first = nullptr;
constinit SpinLock g_lock;

SharedArray* Find(const char* array)
{
    SharedArray* entry = g_first;
    while (entry != nullptr && entry->array != array)
        entry = entry->next;
    return entry;
}

bool Enter(const char* array)
{
    SharedArray* const entry = new (std::nothrow) SharedArray{array, 2, g_first}; // the chain owns its entries
    if (entry != nullptr)
        g_first = entry;
    return entry != nullptr;
}

/// The first entry takes the place of the one that goes.
void Drop(SharedArray* entry)
{
    const std::unique_ptr<SharedArray> first(g_first.load());
    entry->array = first->array;
    entry->holders = first->holders;
    g_first = first->next;
}

} // namespace

bool AddHolder(const char* array)
{
    if (array == nullptr)
        return true;
    const std::lock_guard lock(g_lock);
    SharedArray* const entry = Find(array);
    if (entry == nullptr)
        return Enter(array);
    ++entry->holders;
    return true;
}

bool RemoveHolder(const char* array)
{
    if (array == nullptr || g_first.load() == nullptr)
        return true;
    const std::lock_guard lock(g_lock);
    SharedArray* const entry = Find(array);
    if (entry == nullptr)
        return true;
    if (--entry->holders == 1)
        Drop(entry);
    return false;
}

} // namespace vorn
