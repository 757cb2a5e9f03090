// What the application object and its loops do with a message before it is dispatched.

#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{
CString walk; ///< who was asked, in order

class CAskedWnd : public CWnd
{
public:
    explicit CAskedWnd(const char* name)
        : m_name(name)
    {
    }
    ~CAskedWnd() override { DestroyWindow(); }

    UINT eats = 0;
    int received = 0;

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message == WM_APP)
        {
            walk += m_name;
        }
        return pMsg->message == eats || CWnd::PreTranslateMessage(pMsg);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        received += message == WM_APP;
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    CString m_name;
};

class PreTranslate : public testing::Test
{
protected:
    PreTranslate()
    {
        m_main.CreateEx(0, nullptr, "main", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr, nullptr);
        m_page.Create(nullptr, "", 0, CRect(0, 0, 100, 100), &m_main, 1);
        m_field.Create(nullptr, "", 0, CRect(0, 0, 50, 50), &m_page, 2);
        theApp.onPreTranslate = [](const MSG& message)
        {
            if (message.message == WM_APP)
            {
                walk += "app ";
            }
            return false;
        };
        walk.Empty();
    }
    ~PreTranslate() override
    {
        theApp.onPreTranslate = nullptr;
        theApp.m_pMainWnd = nullptr;
    }

    CAskedWnd m_main{"main "};
    CAskedWnd m_page{"page "};
    CAskedWnd m_field{"field "};
};
} // namespace

TEST_F(PreTranslate, FromTheApplicationToTheWindowAndUp)
{
    m_field.PostMessage(WM_APP);
    PumpPending();
    EXPECT_STREQ("app field page main ", walk);
    EXPECT_EQ(1, m_field.received);
}

TEST_F(PreTranslate, WhoEatsTheMessageEndsTheWalk)
{
    m_page.eats = WM_APP;
    m_field.PostMessage(WM_APP);
    PumpPending();
    EXPECT_STREQ("app field page ", walk);
    EXPECT_EQ(0, m_field.received) << "it is not dispatched";
}

TEST_F(PreTranslate, ApplicationMayEatIt)
{
    theApp.onPreTranslate = [](const MSG& message)
    {
        return message.message == WM_APP;
    };
    m_field.PostMessage(WM_APP);
    PumpPending();
    EXPECT_STREQ("", walk);
    EXPECT_EQ(0, m_field.received);
}

TEST_F(PreTranslate, WalkStopsAtTheMainWindow)
{
    theApp.m_pMainWnd = &m_page;
    m_field.PostMessage(WM_APP);
    PumpPending();
    EXPECT_STREQ("app field page page ", walk)
        << "the main window is asked once more, since it is not of the top level";
}

TEST_F(PreTranslate, MainWindowSeesMessagesOfOtherWindows)
{
    theApp.m_pMainWnd = &m_main;
    CAskedWnd other("other ");
    other.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
    other.PostMessage(WM_APP);
    PumpPending();
    EXPECT_STREQ("app other main ", walk);
    EXPECT_EQ(1, other.received);
}

TEST_F(PreTranslate, MessagesOfTheThreadAreNoWindows)
{
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP, 0, 0);
    PumpPending();
    EXPECT_STREQ("app ", walk);
}

TEST_F(PreTranslate, ModalLoopOfADialogAsksAsWell)
{
    class CModal : public CDialog
    {
    public:
        CModal()
            : CDialog(IDD_PLAIN)
        {
        }
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            GetDlgItem(IDC_BUTTON)->PostMessage(WM_APP);
            PostMessage(WM_COMMAND, IDOK);
            return TRUE;
        }
        BOOL PreTranslateMessage(MSG* pMsg) override
        {
            if (pMsg->message == WM_APP)
            {
                walk += "dialog ";
            }
            return CDialog::PreTranslateMessage(pMsg);
        }
    };
    CModal dialog;
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_STREQ("app dialog ", walk) << "the button itself has no object";
}

TEST_F(PreTranslate, WalkFromAnyWindow)
{
    MSG message = {};
    message.hwnd = m_field;
    message.message = WM_APP;
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(m_page, &message));
    EXPECT_STREQ("field page ", walk);
}

namespace
{
/// A thread object of its own, of which the tests run the loop.
class CLoop : public CWinThread
{
public:
    int idles = 0;
    int moreIdles = 0;
    int exits = 0;

    BOOL OnIdle(LONG lCount) override
    {
        idles += lCount == 0;
        CWinThread::OnIdle(lCount);
        moreIdles += lCount > 0;
        if (lCount == 2)
        {
            ::PostQuitMessage(17);
        }
        return lCount < 2;
    }
    int ExitInstance() override
    {
        ++exits;
        return CWinThread::ExitInstance();
    }
};
} // namespace

TEST(Thread, RunGoesOnUntilQuit)
{
    PumpPending();
    CLoop loop;
    EXPECT_EQ(17, loop.Run());
    EXPECT_EQ(1, loop.exits);
    EXPECT_EQ(1, loop.idles);
    EXPECT_EQ(2, loop.moreIdles) << "as long as there is more to do";
}

TEST(Thread, IdleMessages)
{
    MSG message = {};
    message.message = WM_PAINT;
    EXPECT_FALSE(theApp.IsIdleMessage(&message));
    message.message = WM_LBUTTONDOWN;
    EXPECT_TRUE(theApp.IsIdleMessage(&message));
    message.message = WM_MOUSEMOVE;
    message.pt = {3, 4};
    EXPECT_TRUE(theApp.IsIdleMessage(&message));
    EXPECT_FALSE(theApp.IsIdleMessage(&message)) << "the mouse rests";
    message.pt = {3, 5};
    EXPECT_TRUE(theApp.IsIdleMessage(&message));
}

TEST(Thread, ApplicationIsTheThreadsObject)
{
    EXPECT_EQ(&theApp, AfxGetApp());
    EXPECT_EQ(&theApp, AfxGetThread());
    CWinThread* inOther = &theApp;
    std::thread([&] { inOther = AfxGetThread(); }).join();
    EXPECT_EQ(nullptr, inOther);
}

TEST(Thread, MainWindow)
{
    CTestFrame frame;
    theApp.m_pMainWnd = &frame;
    EXPECT_EQ(&frame, AfxGetMainWnd());
    frame.DestroyWindow();
    EXPECT_EQ(nullptr, theApp.m_pMainWnd) << "a main window that is gone is none";
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        << "and the program ends with it";

    CTestFrame active;
    active.SetActiveWindow();
    EXPECT_EQ(&active, AfxGetMainWnd()) << "without one the active window counts";
}

namespace
{
void CALLBACK CloseTheBox(HWND, UINT, UINT_PTR timer, DWORD)
{
    if (const HWND box = ::GetActiveWindow())
    {
        ::KillTimer(nullptr, timer);
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    }
}
} // namespace

TEST(Thread, MessageFilterSeesMessagesOfMessageBoxes)
{
    theApp.filtered = 0;
    // The box closes by a timer, whose message it dispatches itself.
    ASSERT_NE(0u, ::SetTimer(nullptr, 0, 20, &CloseTheBox));
    EXPECT_EQ(IDOK, ::MessageBox(nullptr, "text", "title", MB_OK));
    EXPECT_GT(theApp.filtered, 0);
}

TEST(Application, HandlesAndNames)
{
    EXPECT_EQ(::GetModuleHandle(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(::GetModuleHandle(nullptr), theApp.m_hInstance);
    EXPECT_EQ(::GetModuleHandle(nullptr), AfxGetResourceHandle());
    EXPECT_STREQ("mfc_tests", theApp.m_pszAppName);
    EXPECT_STREQ("mfc_tests", AfxGetAppName());
    EXPECT_STREQ("mfc_tests", theApp.m_pszExeName);
    EXPECT_NE(nullptr, theApp.m_lpCmdLine);
    EXPECT_EQ(::LoadCursor(nullptr, IDC_CROSS), theApp.LoadStandardCursor(IDC_CROSS));
    EXPECT_NE(nullptr, theApp.LoadStandardIcon(IDI_APPLICATION));
    EXPECT_EQ(nullptr, theApp.LoadCursor(9999));
    EXPECT_EQ(nullptr, theApp.LoadIcon(9999));
}

TEST(Application, ResourceHandleCanBeSet)
{
    AfxSetResourceHandle(::GetModuleHandle("user32.dll"));
    EXPECT_EQ(::GetModuleHandle("user32.dll"), AfxFindResourceHandle("x", RT_DIALOG));
    CString text;
    EXPECT_FALSE(text.LoadString(IDS_HELLO));
    AfxSetResourceHandle(::GetModuleHandle(nullptr));
    EXPECT_TRUE(text.LoadString(IDS_HELLO));
}

TEST(Application, MessageBoxIsTheApplications)
{
    class CQuietApp : public CWinApp
    {
    public:
        CString text;
        UINT type = 0;
        UINT help = 0;
        int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override
        {
            text = lpszPrompt;
            type = nType;
            help = nIDPrompt;
            return IDRETRY;
        }
    };
    AFX_MODULE_STATE other;
    AFX_MANAGE_STATE(&other);
    CQuietApp quiet;
    AfxSetResourceHandle(::GetModuleHandle(nullptr));
    EXPECT_EQ(IDRETRY, AfxMessageBox("text", MB_OKCANCEL, 5));
    EXPECT_STREQ("text", quiet.text);
    EXPECT_EQ(static_cast<UINT>(MB_OKCANCEL), quiet.type);
    EXPECT_EQ(5u, quiet.help);
    AfxMessageBox(IDS_HELLO);
    EXPECT_STREQ("你好 hello", quiet.text);
    EXPECT_EQ(static_cast<UINT>(IDS_HELLO), quiet.help);
}
