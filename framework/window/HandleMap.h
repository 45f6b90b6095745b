#pragma once

/// @file
/// Maps from system handles to objects, one set for each thread. A handle has at most one
/// permanent object (created by its owner, which lives as long as its owner wants) and at
/// most one temporary object (made on demand by FromHandle for handles nobody wraps).
/// Temporary objects live until the idle time of the message loop in which they were made:
/// a loop nested inside a handler (a modal dialog) never frees what the handler still holds.
#include "framework/core/Export.h"

#include <windows.h>

#include <array>
#include <cstddef>
#include <memory>
#include <unordered_map>

namespace vorn
{

/// One entry for each kind of handle that has a map.
enum class HandleKind
{
    Window,
    Menu,
    DeviceContext,
    GdiObject,
    ImageList,
    Count
};

/// What thread state knows of a map without knowing its types.
class HandleMapBase
{
public:
    HandleMapBase() = default;
    HandleMapBase(const HandleMapBase&) = delete;
    HandleMapBase& operator=(const HandleMapBase&) = delete;
    virtual ~HandleMapBase() = default;

    /// Frees the temporary objects made at loop depth @p depth or deeper (0 frees all).
    virtual void FreeTemporary(int depth) = 0;
};

/// Nesting depth of message loops on this thread; temporary objects remember it.
HOSTFRAMEWORK_API int CurrentLoopDepth();

/// This thread's map of one kind, null until first used.
HOSTFRAMEWORK_API std::unique_ptr<HandleMapBase>& ThreadHandleMapSlot(HandleKind kind);

/// Frees, in every map of this thread, the temporary objects of the running message loop.
/// Called at idle time and at the end of a loop.
HOSTFRAMEWORK_API void FreeTemporaryObjects();

/// Handle map. @p Traits names the types and makes temporary objects:
/// @code
/// struct MenuTraits
/// {
///     using Object = CMenu;
///     using Handle = HMENU;
///     static constexpr HandleKind kKind = HandleKind::Menu;
///     static Object* MakeTemporary(Handle handle); // may return null when memory is short
///     static void FreeTemporary(Object* object);   // clears the handle first, so that it is not destroyed
/// };
/// @endcode
template <class Traits>
class HandleMap : public HandleMapBase
{
public:
    using Object = typename Traits::Object;
    using Handle = typename Traits::Handle;

    ~HandleMap() override
    {
        FreeTemporary(0);
    }

    /// The permanent object, else the temporary one, else a new temporary one. Null for a null handle.
    Object* FromHandle(Handle handle)
    {
        if (!handle)
        {
            return nullptr;
        }
        if (Object* object = LookupPermanent(handle))
        {
            return object;
        }
        if (Object* object = LookupTemporary(handle))
        {
            return object;
        }
        return AddTemporary(handle);
    }

    Object* LookupPermanent(Handle handle) const
    {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    Object* LookupTemporary(Handle handle) const
    {
        const auto found = m_temporary.find(handle);
        return found == m_temporary.end() ? nullptr : found->second.object;
    }

    /// Makes @p object the permanent one for @p handle. The map does not own it.
    void SetPermanent(Handle handle, Object* object)
    {
        m_permanent[handle] = object;
    }

    /// Forgets the permanent object of @p handle.
    void RemovePermanent(Handle handle)
    {
        m_permanent.erase(handle);
    }

    bool IsTemporary(const Object* object) const
    {
        for (const auto& [handle, entry] : m_temporary)
        {
            if (entry.object == object)
            {
                return true;
            }
        }
        return false;
    }

    std::size_t TemporaryCount() const
    {
        return m_temporary.size();
    }

    std::size_t PermanentCount() const
    {
        return m_permanent.size();
    }

    /// Calls visit(handle, object) for each permanent object, in no order. It must change nothing here.
    template <class Visit>
    void VisitPermanent(Visit visit) const
    {
        for (const auto& [handle, object] : m_permanent)
        {
            visit(handle, object);
        }
    }

    void FreeTemporary(int depth) override
    {
        for (auto entry = m_temporary.begin(); entry != m_temporary.end();)
        {
            if (entry->second.depth < depth)
            {
                ++entry;
                continue;
            }
            Traits::FreeTemporary(entry->second.object);
            entry = m_temporary.erase(entry);
        }
    }

private:
    struct Temporary
    {
        Object* object;
        int depth;
    };

    Object* AddTemporary(Handle handle)
    {
        Object* object = Traits::MakeTemporary(handle);
        if (object)
        {
            m_temporary[handle] = Temporary{object, CurrentLoopDepth()};
        }
        return object;
    }

    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Temporary> m_temporary;
};

/// This thread's map for @p Traits, made on first use.
template <class Traits>
HandleMap<Traits>& ThreadHandleMap()
{
    auto& slot = ThreadHandleMapSlot(Traits::kKind);
    if (!slot)
    {
        slot = std::make_unique<HandleMap<Traits>>();
    }
    return static_cast<HandleMap<Traits>&>(*slot);
}

} // namespace vorn
