// Tests of the real module through its exported interface and its real window.
#include "tests/window/Child.h"
#include "tests/window/Process.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace
{

constexpr int kTries = 3;
const char kTryVariable[] = "ZORVANE_TEST_TRY"; // of this process; the first one has none

/// The tests that failed, as a filter.
std::string FailedTests()
{
    std::string filter;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i)
    {
        const testing::TestSuite& suite = *all.GetTestSuite(i);
        for (int j = 0; j < suite.total_test_count(); ++j)
        {
            const testing::TestInfo& test = *suite.GetTestInfo(j);
            if (test.result()->Failed())
                filter += std::string(suite.name()) + "." + test.name() + ":";
        }
    }
    return filter;
}

/// The real mouse and keyboard lose an event now and then on a busy machine: what failed gets further
/// tries, which a real fault fails as well.
int TryAgain()
{
    const char* const said = getenv(kTryVariable);
    const int next = (said ? atoi(said) : 1) + 1;
    const std::string failed = FailedTests();
    if (next > kTries || failed.empty())
        return 1;
    printf("try %d of %s\n", next, failed.c_str());
    fflush(stdout);
    SetEnvironmentVariableA(kTryVariable, std::to_string(next).c_str());
    return ChildProcess(OwnPath(), "--gtest_filter=" + failed, "", GetStdHandle(STD_OUTPUT_HANDLE))
        .WaitForEnd(INFINITE);
}

} // namespace

int main(int count, char** arguments)
{
    if (const std::optional<int> end = RunAsChild(count, arguments))
        return *end;
    ::testing::InitGoogleTest(&count, arguments);
    // Without code page 936 no Chinese text means anything.
    if (GetACP() != 936)
    {
        printf("code page %u instead of 936\n", GetACP());
        return 1;
    }
    return RUN_ALL_TESTS() == 0 ? 0 : TryAgain();
}
