#include "tests/support/CrashHandler.h"
#include "tests/support/CurrentTest.h"
#include "tests/support/ExitCodes.h"

#include <execinfo.h>
#include <pthread.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace vorn::test
{

namespace
{

pthread_t s_mainThread;

void PrintStack()
{
    std::array<void*, 48> frames;
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    backtrace_symbols_fd(frames.data(), count, STDERR_FILENO);
}

// Unused where the sanitizer reports crashes itself.
[[maybe_unused]] void OnCrash(int signal)
{
    std::fprintf(stderr, "\nCRASH in %s%s: %s\n", CurrentTestName(), CrashNote(), strsignal(signal));
    std::fflush(stderr);
    PrintStack();
    _exit(kCrashExitCode);
}

void OnHang(int)
{
    PrintStack();
    _exit(kWatchdogExitCode);
}

void Handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_ONSTACK;
    sigaction(signal, &action, nullptr);
}

[[maybe_unused]] void UseOwnSignalStack()
{
    static std::array<char, 65536> memory; // a stack overflow leaves no room on the thread's own
    stack_t stack = {};
    stack.ss_sp = memory.data();
    stack.ss_size = memory.size();
    sigaltstack(&stack, nullptr);
}

} // namespace

void InstallCrashHandler()
{
    s_mainThread = pthread_self();
    Handle(SIGUSR2, OnHang);
#ifndef __SANITIZE_ADDRESS__
    UseOwnSignalStack();
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
    {
        Handle(signal, OnCrash);
    }
#endif
}

void EndAsHung(int seconds)
{
    std::fprintf(stderr, "\nHANG in %s%s: not done after %d s\n", CurrentTestName(), CrashNote(), seconds);
    std::fflush(stderr);
    pthread_kill(s_mainThread, SIGUSR2);
    sleep(2);
    _exit(kWatchdogExitCode);
}

} // namespace vorn::test
