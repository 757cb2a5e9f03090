#include <afxcmn.h>
#include <afxwin.h>

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Without code page 936 no Chinese text comes out right.
    if (GetACP() != 936)
    {
        printf("code page 936 is needed, this is %u\n", GetACP());
        return 1;
    }
    if (!AfxWinInit(GetModuleHandleA(nullptr), nullptr, GetCommandLineA(), SW_SHOW) ||
        !AfxInitRichEdit2())
    {
        printf("the framework does not start\n");
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
