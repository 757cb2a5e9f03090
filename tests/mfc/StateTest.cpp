#include "tests/mfc/TestApp.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace
{
AFX_MODULE_STATE* WhatIsSet()
{
    return AfxGetThreadState()->m_pModuleState;
}

void ThrowInState(AFX_MODULE_STATE* state)
{
    AFX_MANAGE_STATE(state);
    throw std::runtime_error("left early");
}
} // namespace

TEST(ModuleState, OwnOneCountsUnlessAnotherIsSet)
{
    EXPECT_EQ(nullptr, WhatIsSet());
    EXPECT_EQ(AfxGetStaticModuleState(), AfxGetModuleState());
    AFX_MODULE_STATE other;
    EXPECT_EQ(nullptr, AfxSetModuleState(&other));
    EXPECT_EQ(&other, AfxGetModuleState());
    EXPECT_EQ(&other, AfxSetModuleState(nullptr));
    EXPECT_EQ(AfxGetStaticModuleState(), AfxGetModuleState());
}

TEST(ModuleState, IsRestoredOnEveryPath)
{
    AFX_MODULE_STATE first;
    AFX_MODULE_STATE second;
    {
        AFX_MAINTAIN_STATE2 outer(&first);
        EXPECT_EQ(&first, AfxGetModuleState());
        {
            AFX_MAINTAIN_STATE2 inner(&second);
            EXPECT_EQ(&second, AfxGetModuleState());
            {
                AFX_MAINTAIN_STATE2 innermost(AfxGetStaticModuleState());
                EXPECT_EQ(AfxGetStaticModuleState(), AfxGetModuleState());
            }
            EXPECT_EQ(&second, AfxGetModuleState());
        }
        EXPECT_EQ(&first, AfxGetModuleState());
        EXPECT_THROW(ThrowInState(&second), std::runtime_error);
        EXPECT_EQ(&first, AfxGetModuleState());
    }
    EXPECT_EQ(nullptr, WhatIsSet());
}

TEST(ModuleState, IsOfTheThread)
{
    AFX_MODULE_STATE other;
    AFX_MANAGE_STATE(&other);
    AFX_MODULE_STATE* inOther = nullptr;
    std::thread([&] { inOther = AfxGetModuleState(); }).join();
    EXPECT_EQ(AfxGetStaticModuleState(), inOther);
    EXPECT_EQ(&other, AfxGetModuleState());
}

TEST(ModuleState, HoldsApplicationAndHandles)
{
    AFX_MODULE_STATE other;
    AFX_MANAGE_STATE(&other);
    EXPECT_EQ(nullptr, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetThread());
    EXPECT_EQ(nullptr, AfxGetInstanceHandle());
    EXPECT_STREQ("", AfxGetAppName());
    const HINSTANCE user = ::GetModuleHandle("user32.dll");
    AfxSetResourceHandle(user);
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EXPECT_EQ(&theApp, AfxGetApp());
        EXPECT_NE(user, AfxGetResourceHandle());
    }
    EXPECT_EQ(user, AfxGetResourceHandle());
    {
        CWinApp second("second");
        EXPECT_EQ(&second, AfxGetApp());
        EXPECT_EQ(&second, AfxGetThread());
        EXPECT_STREQ("second", AfxGetAppName());
    }
    EXPECT_EQ(nullptr, AfxGetApp());
    EXPECT_EQ(nullptr, AfxGetThread());
}

TEST(ModuleState, WindowProceduresRunInTheirOwnState)
{
    class CStateWnd : public CWnd
    {
    public:
        AFX_MODULE_STATE* seen = nullptr;
        ~CStateWnd() override { DestroyWindow(); }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                seen = AfxGetModuleState();
                return 5;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CTestFrame frame;
    CStateWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    {
        AFX_MODULE_STATE hosts;
        AFX_MANAGE_STATE(&hosts);
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(wnd.m_hWnd)) << "objects belong to the module";
        EXPECT_EQ(5, ::SendMessage(wnd.m_hWnd, WM_APP, 0, 0));
        EXPECT_EQ(AfxGetStaticModuleState(), wnd.seen);
        EXPECT_EQ(&hosts, AfxGetModuleState());
    }
}

TEST(ModuleState, ThreadsHaveTheirOwnObjects)
{
    CTestFrame frame;
    CWnd* inOther = &frame;
    bool createdAndGone = false;
    std::thread(
        [&]
        {
            inOther = CWnd::FromHandlePermanent(frame.m_hWnd);
            CWnd own;
            own.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr);
            createdAndGone = CWnd::FromHandlePermanent(own.m_hWnd) == &own && own.DestroyWindow();
        })
        .join();
    EXPECT_EQ(nullptr, inOther);
    EXPECT_TRUE(createdAndGone);
    EXPECT_EQ(&frame, CWnd::FromHandlePermanent(frame.m_hWnd));
}

namespace
{
class CThrowingWnd : public CWnd
{
public:
    UINT throwsOn = 0;
    ~CThrowingWnd() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == throwsOn)
        {
            AfxThrowUserException();
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST(WindowProcedure, LetsNoExceptionOut)
{
    CTestFrame frame;
    CThrowingWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 5, 5), &frame, 1));
    wnd.throwsOn = WM_APP;
    EXPECT_EQ(0, wnd.SendMessage(WM_APP));
    EXPECT_EQ(nullptr, WhatIsSet());

    wnd.throwsOn = WM_PAINT;
    wnd.Invalidate();
    wnd.SendMessage(WM_PAINT);
    EXPECT_FALSE(::GetUpdateRect(wnd, nullptr, FALSE)) << "or it would be asked for ever";

    CThrowingWnd unborn;
    unborn.throwsOn = WM_CREATE;
    EXPECT_FALSE(unborn.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 2));
}

TEST(WindowProcedure, MessageAtHandIsKeptWhileOthersNest)
{
    class CNestingWnd : public CWnd
    {
    public:
        UINT after = 0;
        UINT inside = 0;
        ~CNestingWnd() override { DestroyWindow(); }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                SendMessage(WM_APP + 1);
                after = GetCurrentMessage()->message;
                return 0;
            }
            if (message == WM_APP + 1)
            {
                inside = GetCurrentMessage()->message;
                return 0;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CTestFrame frame;
    CNestingWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    wnd.SendMessage(WM_APP);
    EXPECT_EQ(static_cast<UINT>(WM_APP + 1), wnd.inside);
    EXPECT_EQ(static_cast<UINT>(WM_APP), wnd.after);
}
