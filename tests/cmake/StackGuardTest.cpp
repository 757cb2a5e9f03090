// What happens to a program of ours that writes past a buffer on its stack.
#include "tests/window/Process.h"

#include <gtest/gtest.h>

#include <cstring>

#include <windows.h>

extern "C" uintptr_t __stack_chk_guard;

namespace
{

const char kOverrun[] = "--overrun";
const char kTellGuard[] = "--tell-guard";
constexpr int kGuardShift = 8; // the lowest byte is always zero
constexpr DWORD kStackBufferOverrun = 0xC0000409;

/// Where the compiler can't see it.
size_t __attribute__((noinline)) CopyTo(char* buffer, const char* text, size_t length)
{
    memcpy(buffer, text, length);
    __asm__ volatile("" : : "r"(buffer) : "memory");
    return length;
}

size_t __attribute__((noinline)) CopyIntoSmallBuffer(size_t length)
{
    static const char text[64] = "a text that is longer than the buffer it is copied to";
    char buffer[8];
    return CopyTo(buffer, text, length);
}

int RunSelf(const char* argument)
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof(path));
    return ChildProcess(path, argument).WaitForEnd();
}

TEST(StackGuard, EndsAProgramThatWritesPastABuffer)
{
    EXPECT_EQ(RunSelf(kOverrun), static_cast<int>(kStackBufferOverrun));
}

TEST(StackGuard, DiffersFromProcessToProcess)
{
    const int first = RunSelf(kTellGuard);
    const int second = RunSelf(kTellGuard);
    EXPECT_NE(first, 0);
    EXPECT_NE(first, second);
}

TEST(StackGuard, BeginsWithTheByteThatEndsATextCopy)
{
    EXPECT_EQ(__stack_chk_guard & 0xFF, 0u);
    EXPECT_NE(__stack_chk_guard, 0u);
}

} // namespace

int main(int count, char** arguments)
{
    const std::string argument = count == 2 ? arguments[1] : "";
    if (argument == kOverrun)
        return static_cast<int>(CopyIntoSmallBuffer(40));
    if (argument == kTellGuard)
        return static_cast<int>(__stack_chk_guard >> kGuardShift);
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
