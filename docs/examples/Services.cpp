#include <VornCommon.h>

#include <cstdio>

enum APPSTAT : int // what this program counts
{
    kStarts,
    kSearches
};

namespace
{

void Texts()
{
    CStringArray parts;
    SplitString(" KSEA ; ;KGEG", ";", parts, true, true);
    CSortableStringArray idents;
    idents.Append(parts);
    idents.Sort(true);
    std::printf("%d parts, %s first\n", static_cast<int>(parts.GetSize()), idents[0].GetString());
    std::printf("%s, %d\n", FixCase("SEATTLE-TACOMA").GetString(), MatchStrings("K*A", "ksea", false, false) ? 1 : 0);
    std::printf("%s is %llu\n", ToBaseN(123456, 36).GetString(), FromBaseN("2n9c", 36));
}

// A list of texts in a record, and read back.
void Records()
{
    char record[64];
    char* cursor = record;
    unsigned long room = sizeof record;
    CStringList route;
    route.AddTail("KSEA");
    route.AddTail("KGEG");
    ReadWriteCStringList(cursor, room, route, false);
    const auto used = static_cast<unsigned long>(cursor - record);

    CStringList copy;
    cursor = record;
    room = used;
    if (ReadWriteCStringList(cursor, room, copy, true))
        std::printf("%lu bytes, the last text is %s\n", used, copy.GetTail().GetString());
}

void Counters()
{
    ProgramStats stats;
    stats.Init("example.sta"); // makes the file
    stats.Event(kStarts);
    stats.Event(kSearches);
    stats.Event(kSearches);
    stats.SaveStats();
    ProgramStats later;
    later.Init("example.sta");
    std::printf("%ld starts, %ld searches\n", later.GetStat(kStarts), later.GetStat(kSearches));
}

// Other threads wait meanwhile, and the process goes before others.
void Hurry()
{
    Vornwald::Win32CriticalSection guard(0);
    guard.Lock();
    {
        const AppPriorityBoost boost(HIGH_PRIORITY_CLASS);
        std::printf("hurrying: %d\n", ::GetPriorityClass(::GetCurrentProcess()) == HIGH_PRIORITY_CLASS ? 1 : 0);
    }
    std::printf("still: %d\n", ::GetPriorityClass(::GetCurrentProcess()) == HIGH_PRIORITY_CLASS ? 1 : 0);
    guard.Unlock();
}

} // namespace

int main()
{
    CWinApp app("ServicesExample");
    Texts();
    Records();
    Counters();
    Hurry();
    const UINT clock = TimerMgr::Inst()->GetNextTimerValue();
    const UINT blink = TimerMgr::Inst()->GetNextTimerValue();
    std::printf("timers %u and %u\n", clock, blink);
    TimerMgr::FreeInst();
    return 0;
}
