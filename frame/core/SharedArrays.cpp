#include "frame/core/SharedArrays.h"

#include "framework/core/SpinLock.h"

#include <atomic>
#include <memory>
#include <mutex>

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

void Enter(const char* array)
{
    g_first = std::make_unique<SharedArray>(SharedArray{array, 2, g_first}).release(); // the chain owns its entries
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

void AddHolder(const char* array)
{
    if (array == nullptr)
        return;
    const std::lock_guard lock(g_lock);
    SharedArray* const entry = Find(array);
    if (entry != nullptr)
        ++entry->holders;
    else
        Enter(array);
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
