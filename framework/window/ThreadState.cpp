#include "framework/window/ThreadState.h"

namespace vorn
{

namespace
{

DWORD ThreadSlot()
{
    static const DWORD slot = TlsAlloc();
    return slot;
}

} // namespace

ThreadState& CurrentThreadState()
{
    // Nobody asks for the system's last error across this call, but callers of window functions do.
    const DWORD lastError = GetLastError();
    auto* state = static_cast<ThreadState*>(TlsGetValue(ThreadSlot()));
    if (!state)
    {
        state = std::make_unique<ThreadState>().release(); // the thread slot owns it; ReleaseThreadState ends it
        TlsSetValue(ThreadSlot(), state);
    }
    SetLastError(lastError);
    return *state;
}

void ReleaseThreadState()
{
    const std::unique_ptr<ThreadState> state(static_cast<ThreadState*>(TlsGetValue(ThreadSlot())));
    if (state)
    {
        FreeTemporaryObjects();
        for (auto& map : state->maps)
        {
            map.reset();
        }
        TlsSetValue(ThreadSlot(), nullptr);
    }
}

void ReleaseThreadSlot()
{
    TlsFree(ThreadSlot());
}

int CurrentLoopDepth()
{
    return CurrentThreadState().loopDepth;
}

std::unique_ptr<HandleMapBase>& ThreadHandleMapSlot(HandleKind kind)
{
    return CurrentThreadState().maps[static_cast<std::size_t>(kind)];
}

void FreeTemporaryObjects()
{
    ThreadState& state = CurrentThreadState();
    for (auto& map : state.maps)
    {
        if (map)
        {
            map->FreeTemporary(state.loopDepth);
        }
    }
}

LoopScope::LoopScope()
{
    ++CurrentThreadState().loopDepth;
}

LoopScope::~LoopScope()
{
    FreeTemporaryObjects();
    --CurrentThreadState().loopDepth;
}

} // namespace vorn
