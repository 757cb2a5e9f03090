#include <afxwin.h>

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (GetACP() != 936)
    {
        printf("code page 936 is needed, this is %u\n", GetACP());
        return 1;
    }
    if (!AfxWinInit(GetModuleHandleA(nullptr), nullptr, GetCommandLineA(), SW_SHOW))
    {
        printf("the framework does not start\n");
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    AfxWinTerm();
    return result;
}
