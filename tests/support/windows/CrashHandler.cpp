#include "tests/support/CrashHandler.h"
#include "tests/support/CurrentTest.h"
#include "tests/support/ExitCodes.h"
#include "tests/support/windows/StackText.h"

#include <windows.h>

#include <csignal>
#include <cstdio>
#include <exception>

namespace vorn::test
{

namespace
{

constexpr ULONG kStackForTheHandler = 0x10000; // bytes kept for it when the stack overflows

HANDLE s_mainThread = nullptr;

[[noreturn]] void End(int code)
{
    std::fflush(stdout);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(code));
    for (;;)
    {
    }
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    std::fprintf(stderr, "\nCRASH in %s%s: exception %08lx", CurrentTestName(), CrashNote(), record.ExceptionCode);
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && record.NumberParameters >= 2)
    {
        std::fprintf(stderr, " (%s at %08lx)", record.ExceptionInformation[0] == 0 ? "reading" : "writing",
                     static_cast<unsigned long>(record.ExceptionInformation[1]));
    }
    std::fprintf(stderr, "\n");
    PrintStack(*pointers->ContextRecord);
    End(kCrashExitCode);
}

[[noreturn]] void EndHere(const char* what)
{
    std::fprintf(stderr, "\nCRASH in %s%s: %s\n", CurrentTestName(), CrashNote(), what);
    CONTEXT context = {};
    RtlCaptureContext(&context);
    PrintStack(context);
    End(kCrashExitCode);
}

void OnAbort(int)
{
    EndHere("abort");
}

void OnTerminate()
{
    EndHere("terminate (an exception that nobody caught)");
}

} // namespace

void InstallCrashHandler()
{
    DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &s_mainThread, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    ULONG kept = kStackForTheHandler;
    SetThreadStackGuarantee(&kept);
    SetUnhandledExceptionFilter(OnUnhandledException);
    std::signal(SIGABRT, OnAbort);
    std::set_terminate(OnTerminate);
}

void EndAsHung(int seconds)
{
    std::fprintf(stderr, "\nHANG in %s%s: not done after %d s\n", CurrentTestName(), CrashNote(), seconds);
    CONTEXT context = {};
    context.ContextFlags = CONTEXT_CONTROL;
    SuspendThread(s_mainThread);
    if (GetThreadContext(s_mainThread, &context) != FALSE)
    {
        PrintStack(context);
    }
    End(kWatchdogExitCode);
}

} // namespace vorn::test
