// What -fstack-protector-strong calls. The compiler's own library for it asks the system's crypto
// provider for a number, and does so while a module is loaded: that took three quarters of the load.
#include <cstdint>

#include <windows.h>

namespace
{

// FAST_FAIL_STACK_COOKIE_CHECK_FAILURE of the system.
constexpr unsigned kStackCookieCheckFailure = 2;

uint64_t FileTimeNow()
{
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return static_cast<uint64_t>(now.dwHighDateTime) << 32 | now.dwLowDateTime;
}

/// Another one in every process, from what Visual C++ takes for its cookie.
uintptr_t DrawGuard()
{
    LARGE_INTEGER ticks;
    QueryPerformanceCounter(&ticks);
    uint64_t mix = FileTimeNow() ^ static_cast<uint64_t>(ticks.QuadPart) << 16;
    mix ^= static_cast<uint64_t>(GetCurrentProcessId()) << 32 ^ GetCurrentThreadId();
    mix ^= reinterpret_cast<uintptr_t>(&ticks);
    mix *= 0x9E3779B97F4A7C15u; // 2^64 over the golden ratio: every bit reaches the upper half
    return static_cast<uintptr_t>(mix >> 32);
}

} // namespace

extern "C"
{
    uintptr_t __stack_chk_guard = 0;

    // Ahead of every function that compares the guard, hence the highest priority a program can have.
    __attribute__((constructor(101))) void SetStackGuard()
    {
        // The zero byte ends a text that runs over its buffer.
        __stack_chk_guard = DrawGuard() & ~static_cast<uintptr_t>(0xFF);
    }

    /// Ends the process at once: nothing on the stack can be trusted any more.
    [[noreturn]] void __stack_chk_fail()
    {
        __asm__ volatile("int $0x29" : : "c"(kStackCookieCheckFailure));
        __builtin_unreachable();
    }
}
