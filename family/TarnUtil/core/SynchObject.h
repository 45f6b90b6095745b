#pragma once

#include "family/TarnUtil/core/Export.h"

namespace Vornwald
{

/// A lock whose kind its users need not know. Locks come from the application's factory and are deleted through this
/// class; a lock must not be held when it is deleted.
///
/// The order of the virtual operations is part of the interface.
class TARNUTIL_API SynchObject
{
public:
    SynchObject() = default;
    SynchObject(const SynchObject&) = default;
    SynchObject& operator=(const SynchObject&) = default;

    /// Takes the lock, waiting as long as needed. Returns true once it is held.
    virtual bool Lock() = 0;

    /// Gives the lock back; to be called once for every success of Lock or TryLock, on the same thread.
    virtual void Unlock() = 0;

    /// Takes the lock if it can be had within @p milliseconds (0: at once). The base class knows no way to give up
    /// waiting and returns false without waiting: the lock is not held.
    virtual bool TryLock(int milliseconds);

    virtual ~SynchObject();
};

} // namespace Vornwald
