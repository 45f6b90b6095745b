#pragma once

/// @file
/// Who owns which drawing handle, for the whole process; not public interface.
#include <windows.h>

#include <unordered_map>

namespace vorn
{
/// Map from handles to the objects that own them. Unlike windows, drawing objects are made on one thread and ended on
/// another (a shared cache of pens), so this map is not a thread's. The temporary objects are.
template <typename Handle, typename Object>
class OwnerMap
{
public:
    void Set(Handle handle, Object* object)
    {
        const Guard guard(m_lock);
        m_owners[handle] = object;
    }

    /// Forgets the handle if `object` is on record for it: a stock handle may be held by several objects.
    void Remove(Handle handle, const Object* object)
    {
        const Guard guard(m_lock);
        const auto found = m_owners.find(handle);
        if (found != m_owners.end() && found->second == object)
            m_owners.erase(found);
    }

    Object* Find(Handle handle)
    {
        const Guard guard(m_lock);
        const auto found = m_owners.find(handle);
        return found == m_owners.end() ? nullptr : found->second;
    }

private:
    class Guard
    {
    public:
        explicit Guard(SRWLOCK& lock) : m_lock(lock)
        {
            ::AcquireSRWLockExclusive(&m_lock);
        }
        ~Guard()
        {
            ::ReleaseSRWLockExclusive(&m_lock);
        }
        Guard(const Guard&) = delete;
        Guard& operator=(const Guard&) = delete;

    private:
        SRWLOCK& m_lock;
    };

    SRWLOCK m_lock = SRWLOCK_INIT;
    std::unordered_map<Handle, Object*> m_owners;
};
} // namespace vorn
