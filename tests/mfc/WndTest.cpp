#include "tests/mfc/TestApp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace
{
/// Notes each message it gets.
class CSeeingWnd : public CWnd
{
public:
    ~CSeeingWnd() override { DestroyWindow(); }

    std::vector<UINT> seen;
    int preSubclass = 0;
    int postNcDestroy = 0;
    bool refuseCreation = false;

    bool HasSeen(UINT message) const
    {
        return std::find(seen.begin(), seen.end(), message) != seen.end();
    }
    void PreSubclassWindow() override
    {
        ++preSubclass;
        EXPECT_NE(nullptr, m_hWnd);
    }
    void PostNcDestroy() override
    {
        ++postNcDestroy;
        EXPECT_EQ(nullptr, m_hWnd);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        seen.push_back(message);
        if (message == WM_CREATE && refuseCreation)
        {
            return -1;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class CSeeingButton : public CButton
{
public:
    int clicks = 0;
    int preSubclass = 0;
    void PreSubclassWindow() override { ++preSubclass; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        clicks += message == BM_CLICK;
        return CButton::WindowProc(message, wParam, lParam);
    }
};

HWND PlainButton(CWnd& parent, UINT id = 1)
{
    return ::CreateWindow("BUTTON", "plain", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, parent,
                          reinterpret_cast<HMENU>(id), nullptr, nullptr);
}
} // namespace

TEST(Creation, ObjectGetsTheFirstMessages)
{
    CTestFrame frame;
    CSeeingWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, "text", WS_VISIBLE, CRect(1, 2, 31, 42), &frame, 77));
    ASSERT_FALSE(wnd.seen.empty());
    EXPECT_TRUE(wnd.HasSeen(WM_NCCREATE));
    EXPECT_TRUE(wnd.HasSeen(WM_CREATE));
    EXPECT_LT(std::find(wnd.seen.begin(), wnd.seen.end(), WM_NCCREATE),
              std::find(wnd.seen.begin(), wnd.seen.end(), WM_CREATE));
    EXPECT_EQ(1, wnd.preSubclass);
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(wnd.m_hWnd));
    EXPECT_EQ(77, wnd.GetDlgCtrlID());
    EXPECT_TRUE(wnd.GetStyle() & WS_CHILD);
    CRect rect;
    wnd.GetClientRect(&rect);
    EXPECT_TRUE(rect == CRect(0, 0, 30, 40));
    CString text;
    wnd.GetWindowText(text);
    EXPECT_STREQ("text", text);
}

TEST(Creation, OneObjectDoesNotGetTwoWindows)
{
    CTestFrame frame;
    CSeeingWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1));
    const HWND first = wnd;
    EXPECT_FALSE(wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 2));
    EXPECT_EQ(first, wnd.m_hWnd);
    EXPECT_EQ(0, wnd.postNcDestroy);
}

TEST(Creation, FailureLeavesNoTrace)
{
    CTestFrame frame;
    CSeeingWnd noClass;
    EXPECT_FALSE(noClass.Create("no such class", "", 0, CRect(0, 0, 5, 5), &frame, 1));
    EXPECT_EQ(nullptr, noClass.m_hWnd);
    EXPECT_EQ(1, noClass.postNcDestroy);

    CSeeingWnd refusing;
    refusing.refuseCreation = true;
    EXPECT_FALSE(refusing.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1));
    EXPECT_EQ(nullptr, refusing.m_hWnd);
    EXPECT_EQ(1, refusing.postNcDestroy);

    // The next window is not taken for the one that failed.
    const HWND stranger = PlainButton(frame);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(stranger));
}

TEST(Creation, PreCreateWindowMayChangeAndRefuse)
{
    class CChanging : public CWnd
    {
    public:
        bool allow = true;
        ~CChanging() override { DestroyWindow(); }
        BOOL PreCreateWindow(CREATESTRUCT& cs) override
        {
            cs.lpszName = "changed";
            cs.style |= WS_BORDER;
            return allow && CWnd::PreCreateWindow(cs);
        }
    };
    CTestFrame frame;
    CChanging changing;
    ASSERT_TRUE(changing.Create(nullptr, "given", 0, CRect(0, 0, 5, 5), &frame, 1));
    CString text;
    changing.GetWindowText(text);
    EXPECT_STREQ("changed", text);
    EXPECT_TRUE(changing.GetStyle() & WS_BORDER);

    CChanging refused;
    refused.allow = false;
    EXPECT_FALSE(refused.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1));
}

TEST(Creation, NestsInsideOfCreation)
{
    class CInner : public CSeeingWnd
    {
    };
    class COuter : public CWnd
    {
    public:
        CInner inner;
        ~COuter() override { DestroyWindow(); }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CREATE)
            {
                EXPECT_TRUE(inner.Create(nullptr, "", 0, CRect(0, 0, 5, 5), this, 5));
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CTestFrame frame;
    COuter outer;
    ASSERT_TRUE(outer.Create(nullptr, "", 0, CRect(0, 0, 50, 50), &frame, 1));
    EXPECT_TRUE(outer.inner.HasSeen(WM_NCCREATE));
    EXPECT_EQ(&outer, outer.inner.GetParent());
}

TEST(Destruction, LastOfAllIsPostNcDestroy)
{
    CTestFrame frame;
    CSeeingWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    const HWND handle = wnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(1, wnd.postNcDestroy);
    EXPECT_EQ(WM_NCDESTROY, wnd.seen.back());
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(Destruction, ParentTakesChildrenWithIt)
{
    CSeeingWnd child;
    {
        CTestFrame frame;
        child.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    }
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ(1, child.postNcDestroy);
}

TEST(Destruction, ObjectMayDeleteItself)
{
    static int deleted;
    deleted = 0;
    class CSelfDeleting : public CWnd
    {
    public:
        ~CSelfDeleting() override { ++deleted; }

    protected:
        void PostNcDestroy() override { delete this; }
    };
    CTestFrame frame;
    auto* wnd = new CSelfDeleting;
    ASSERT_TRUE(wnd->Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1));
    wnd->DestroyWindow();
    EXPECT_EQ(1, deleted);
}

TEST(Destruction, DestructorDestroysTheWindow)
{
    CTestFrame frame;
    HWND handle;
    {
        CWnd wnd;
        wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
        handle = wnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
}

TEST(HandleMap, PermanentComesBeforeTemporary)
{
    CTestFrame frame;
    const HWND button = PlainButton(frame);
    CWnd* temporary = CWnd::FromHandle(button);
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(temporary, CWnd::FromHandle(button)) << "one object a window";
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(button));
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nullptr));

    CWnd wnd;
    ASSERT_TRUE(wnd.Attach(button));
    EXPECT_EQ(&wnd, CWnd::FromHandle(button));
    EXPECT_EQ(button, temporary->m_hWnd) << "who still holds the temporary one may use it";
    EXPECT_EQ(button, wnd.Detach());
    EXPECT_EQ(nullptr, wnd.Detach());
    EXPECT_TRUE(::IsWindow(button));
}

TEST(HandleMap, TemporaryObjectsGoWhenIdle)
{
    CTestFrame frame;
    theApp.OnIdle(0);
    auto& windows = *AfxGetModuleThreadState()->m_windows;
    const HWND button = PlainButton(frame);
    const size_t before = windows.TemporaryCount();
    CWnd::FromHandle(button);
    EXPECT_EQ(before + 1, windows.TemporaryCount());
    EXPECT_NE(nullptr, windows.FindTemporary(button));
    theApp.OnIdle(0);
    EXPECT_EQ(0u, windows.TemporaryCount());
    EXPECT_EQ(nullptr, windows.FindTemporary(button));
    EXPECT_TRUE(::IsWindow(button)) << "the window itself stays";
}

TEST(HandleMap, TemporaryObjectsOfAMessageGoWithTheOutermostOne)
{
    class CAsking : public CWnd
    {
    public:
        HWND about = nullptr;
        HWND nested = nullptr;
        bool lived = false;
        ~CAsking() override { DestroyWindow(); }

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                CWnd* temporary = FromHandle(about);
                auto* fromNested = reinterpret_cast<CWnd*>(SendMessage(WM_APP + 1));
                const auto& windows = *AfxGetModuleThreadState()->m_windows;
                lived = windows.FindTemporary(about) == temporary &&
                        windows.FindTemporary(nested) == fromNested;
                return 0;
            }
            if (message == WM_APP + 1)
            {
                return reinterpret_cast<LRESULT>(FromHandle(nested));
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CTestFrame frame;
    CAsking asking;
    asking.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    asking.about = PlainButton(frame);
    asking.nested = PlainButton(frame, 3);
    const HWND outside = PlainButton(frame, 2);
    theApp.OnIdle(0);

    CWnd* fromOutside = CWnd::FromHandle(outside);
    asking.SendMessage(WM_APP);
    EXPECT_TRUE(asking.lived) << "a nested message ends nothing";
    auto& windows = *AfxGetModuleThreadState()->m_windows;
    EXPECT_EQ(nullptr, windows.FindTemporary(asking.about));
    EXPECT_EQ(fromOutside, windows.FindTemporary(outside))
        << "what was made outside of messages may still be in use there";
    theApp.OnIdle(0);
}

TEST(HandleMap, AttachRefusesWhatIsTaken)
{
    CTestFrame frame;
    const HWND button = PlainButton(frame);
    CWnd first;
    CWnd second;
    EXPECT_FALSE(first.Attach(nullptr));
    ASSERT_TRUE(first.Attach(button));
    EXPECT_FALSE(second.Attach(button));
    EXPECT_EQ(nullptr, second.m_hWnd);
    EXPECT_EQ(&first, CWnd::FromHandlePermanent(button));
    EXPECT_FALSE(first.Attach(PlainButton(frame, 2)));
    EXPECT_EQ(button, first.m_hWnd);
    first.Detach();
}

TEST(HandleMap, DestroyWindowDetachesAnAttachedObject)
{
    CTestFrame frame;
    CWnd wnd;
    const HWND button = PlainButton(frame);
    wnd.Attach(button);
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(button));
}

TEST(HandleMap, NullPointerHasNullHandle)
{
    CWnd* volatile none = nullptr;
    EXPECT_EQ(nullptr, static_cast<CWnd*>(none)->GetSafeHwnd());
    CWnd empty;
    EXPECT_EQ(nullptr, empty.GetSafeHwnd());
}

TEST(Subclass, ReceivesMessagesAndPassesThemOn)
{
    CTestFrame frame;
    const HWND handle = PlainButton(frame);
    const auto original = ::GetWindowLong(handle, GWL_WNDPROC);
    CSeeingButton button;
    ASSERT_TRUE(button.SubclassWindow(handle));
    EXPECT_EQ(1, button.preSubclass);
    EXPECT_EQ(&button, CWnd::FromHandlePermanent(handle));
    button.SetCheck(BST_CHECKED);
    CString text;
    button.GetWindowText(text);
    EXPECT_STREQ("plain", text) << "the button's own procedure still works";
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(1, button.clicks);

    EXPECT_EQ(handle, button.UnsubclassWindow());
    EXPECT_EQ(nullptr, button.m_hWnd);
    EXPECT_EQ(original, ::GetWindowLong(handle, GWL_WNDPROC));
    ::SendMessage(handle, BM_CLICK, 0, 0);
    EXPECT_EQ(1, button.clicks);
    EXPECT_TRUE(button.SubclassWindow(handle)) << "may be done anew";
    button.UnsubclassWindow();
}

TEST(Subclass, TwiceIsRefused)
{
    CTestFrame frame;
    const HWND handle = PlainButton(frame);
    CSeeingButton first;
    CSeeingButton second;
    ASSERT_TRUE(first.SubclassWindow(handle));
    EXPECT_FALSE(second.SubclassWindow(handle));
    EXPECT_FALSE(first.SubclassWindow(handle));
    EXPECT_EQ(nullptr, second.m_hWnd);
    EXPECT_EQ(0, second.preSubclass);
    EXPECT_EQ(&first, CWnd::FromHandlePermanent(handle));
    ::SendMessage(handle, BM_CLICK, 0, 0);
    EXPECT_EQ(1, first.clicks);
    EXPECT_FALSE(second.SubclassWindow(nullptr));
    EXPECT_FALSE(second.SubclassWindow(reinterpret_cast<HWND>(0x7FFFFFF)));
}

TEST(Subclass, DialogItem)
{
    CTestFrame frame;
    const HWND handle = PlainButton(frame, 321);
    CSeeingButton button;
    EXPECT_TRUE(button.SubclassDlgItem(321, &frame));
    EXPECT_EQ(handle, button.m_hWnd);
    CSeeingButton missing;
    EXPECT_FALSE(missing.SubclassDlgItem(999, &frame));
}

TEST(Subclass, EndOfTheWindowFreesTheObject)
{
    CTestFrame frame;
    CSeeingButton button;
    button.SubclassWindow(PlainButton(frame));
    ::DestroyWindow(button.m_hWnd);
    EXPECT_EQ(nullptr, button.m_hWnd);
    EXPECT_EQ(nullptr, *button.GetSuperWndProcAddr()) << "the next window has another procedure";
    ASSERT_TRUE(button.SubclassWindow(PlainButton(frame)));
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(1, button.clicks);
}

TEST(WindowClasses, SameArgumentsGiveTheSameName)
{
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    LPCTSTR first = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    LPCTSTR again = AfxRegisterWndClass(CS_DBLCLKS, arrow);
    EXPECT_EQ(first, again);
    LPCTSTR other = AfxRegisterWndClass(CS_DBLCLKS | CS_VREDRAW, arrow);
    EXPECT_STRNE(first, other);
    WNDCLASS info = {};
    EXPECT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), first, &info));
    EXPECT_EQ(static_cast<UINT>(CS_DBLCLKS), info.style);
    EXPECT_EQ(arrow, info.hCursor);
    EXPECT_EQ(nullptr, info.hbrBackground);
}

TEST(WindowClasses, FailureThrows)
{
    AFX_MODULE_STATE other;
    AFX_MANAGE_STATE(&other);
    // Nobody may register classes for this one.
    other.m_hCurrentInstanceHandle = ::GetModuleHandle("user32.dll");
    EXPECT_THROW(AfxRegisterWndClass(CS_DBLCLKS), CResourceException*);
}

TEST(WindowClasses, RegisterClassTellsOfFailure)
{
    WNDCLASS wndClass = {};
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.lpszClassName = "mfc_tests_class";
    EXPECT_TRUE(AfxRegisterClass(&wndClass));
    EXPECT_TRUE(AfxRegisterClass(&wndClass)) << "it is there";
    wndClass.lpszClassName = "";
    EXPECT_FALSE(AfxRegisterClass(&wndClass));
    ::UnregisterClass("mfc_tests_class", AfxGetInstanceHandle());
}

TEST(Wnd, StyleChanges)
{
    CTestFrame frame;
    EXPECT_TRUE(frame.ModifyStyle(0, WS_VSCROLL));
    EXPECT_TRUE(frame.GetStyle() & WS_VSCROLL);
    EXPECT_FALSE(frame.ModifyStyle(0, WS_VSCROLL)) << "nothing to change";
    EXPECT_TRUE(frame.ModifyStyle(WS_VSCROLL, 0, SWP_FRAMECHANGED));
    EXPECT_FALSE(frame.GetStyle() & WS_VSCROLL);
    EXPECT_TRUE(frame.ModifyStyleEx(0, WS_EX_TOOLWINDOW));
    EXPECT_TRUE(frame.GetExStyle() & WS_EX_TOOLWINDOW);
}

TEST(Wnd, TextAndItems)
{
    CTestFrame frame;
    const HWND handle = PlainButton(frame, 5);
    frame.SetWindowText("标题");
    EXPECT_EQ(4, frame.GetWindowTextLength());
    CString text;
    frame.GetWindowText(text);
    EXPECT_STREQ("标题", text);
    char buffer[3];
    EXPECT_EQ(2, frame.GetWindowText(buffer, sizeof(buffer)));

    frame.SetDlgItemText(5, "item");
    EXPECT_EQ(4, frame.GetDlgItemText(5, text));
    EXPECT_STREQ("item", text);
    EXPECT_EQ(0, frame.GetDlgItemText(99, text));
    EXPECT_TRUE(text.IsEmpty());
    frame.SetDlgItemInt(5, 42);
    BOOL translated = FALSE;
    EXPECT_EQ(42u, frame.GetDlgItemInt(5, &translated));
    EXPECT_TRUE(translated);
    EXPECT_EQ(handle, frame.GetDlgItem(5)->m_hWnd);
    EXPECT_EQ(nullptr, frame.GetDlgItem(99));
    HWND found = nullptr;
    frame.GetDlgItem(5, &found);
    EXPECT_EQ(handle, found);
    frame.GetDlgItem(5)->SetDlgCtrlID(6);
    EXPECT_EQ(6, frame.GetDlgItem(6)->GetDlgCtrlID());
}

TEST(Wnd, CheckedButtons)
{
    CTestFrame frame;
    for (UINT id = 10; id < 13; ++id)
    {
        ::CreateWindow("BUTTON", "", WS_CHILD | BS_AUTORADIOBUTTON, 0, 0, 5, 5, frame,
                       reinterpret_cast<HMENU>(id), nullptr, nullptr);
    }
    EXPECT_EQ(0, frame.GetCheckedRadioButton(10, 12));
    frame.CheckRadioButton(10, 12, 11);
    EXPECT_EQ(11, frame.GetCheckedRadioButton(10, 12));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), frame.IsDlgButtonChecked(11));
    frame.CheckDlgButton(11, BST_UNCHECKED);
    EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), frame.IsDlgButtonChecked(11));
}

TEST(Wnd, PlaceAndCoordinates)
{
    CTestFrame frame;
    frame.MoveWindow(CRect(100, 110, 300, 330));
    CRect rect;
    frame.GetWindowRect(&rect);
    EXPECT_TRUE(rect == CRect(100, 110, 300, 330));
    EXPECT_TRUE(frame.SetWindowPos(&CWnd::wndTop, 1, 2, 150, 160, SWP_NOZORDER));
    frame.GetWindowRect(&rect);
    EXPECT_TRUE(rect == CRect(1, 2, 151, 162));

    CPoint point(0, 0);
    frame.ClientToScreen(&point);
    CRect client;
    frame.GetClientRect(&client);
    frame.ClientToScreen(&client);
    EXPECT_TRUE(client.TopLeft() == point);
    frame.ScreenToClient(&client);
    EXPECT_TRUE(client.TopLeft() == CPoint(0, 0));
    frame.ScreenToClient(&point);
    EXPECT_TRUE(point == CPoint(0, 0));
}

TEST(Wnd, CentersOverOwnerAndParent)
{
    CTestFrame owner;
    owner.MoveWindow(200, 200, 400, 300);
    CWnd popup;
    popup.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 100, 50, owner, nullptr);
    popup.CenterWindow();
    CRect rect;
    popup.GetWindowRect(&rect);
    EXPECT_TRUE(rect.CenterPoint() == CPoint(400, 350));

    owner.MoveWindow(-350, 0, 400, 300);
    popup.CenterWindow();
    popup.GetWindowRect(&rect);
    EXPECT_EQ(0, rect.left) << "not off the screen";

    CWnd child;
    child.Create(nullptr, "", 0, CRect(0, 0, 20, 10), &owner, 1);
    child.CenterWindow();
    CRect client;
    owner.GetClientRect(&client);
    child.GetWindowRect(&rect);
    owner.ScreenToClient(&rect);
    EXPECT_EQ((client.Width() - 20) / 2, rect.left);
    EXPECT_EQ((client.Height() - 10) / 2, rect.top);
    popup.DestroyWindow();
    child.DestroyWindow();
}

TEST(Wnd, Relations)
{
    CTestFrame frame;
    CWnd child;
    child.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 1);
    CWnd grandchild;
    grandchild.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 9, 9), &child, 2);
    EXPECT_EQ(&child, grandchild.GetParent());
    EXPECT_EQ(&frame, grandchild.GetTopLevelParent());
    EXPECT_TRUE(frame.IsChild(&grandchild));
    EXPECT_FALSE(child.IsChild(&frame));
    EXPECT_EQ(&child, frame.GetWindow(GW_CHILD));
    EXPECT_EQ(&child, frame.GetTopWindow());
    EXPECT_EQ(nullptr, child.GetNextWindow());
    EXPECT_EQ(&child, grandchild.GetOwner());
    grandchild.SetOwner(&frame);
    EXPECT_EQ(&frame, grandchild.GetOwner());
    EXPECT_EQ(&child, grandchild.SetParent(&frame));
    EXPECT_EQ(&frame, grandchild.GetParent());
    EXPECT_FALSE(frame.IsChild(nullptr));
    EXPECT_EQ(::GetDesktopWindow(), CWnd::GetDesktopWindow()->m_hWnd);
    grandchild.DestroyWindow();
    child.DestroyWindow();
}

TEST(Wnd, FocusCaptureAndState)
{
    CTestFrame frame;
    CWnd child;
    child.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 1);
    frame.SetActiveWindow();
    child.SetFocus();
    EXPECT_EQ(&child, CWnd::GetFocus());
    child.SetCapture();
    EXPECT_EQ(&child, CWnd::GetCapture());
    ::ReleaseCapture();
    EXPECT_EQ(nullptr, CWnd::GetCapture());
    EXPECT_TRUE(child.IsWindowEnabled());
    child.EnableWindow(FALSE);
    EXPECT_FALSE(child.IsWindowEnabled());
    EXPECT_TRUE(child.IsWindowVisible());
    child.ShowWindow(SW_HIDE);
    EXPECT_FALSE(child.IsWindowVisible());
    child.DestroyWindow();
}

TEST(Wnd, ScrollBars)
{
    CTestFrame frame;
    frame.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    frame.SetScrollRange(SB_VERT, 0, 100);
    EXPECT_EQ(100, frame.GetScrollLimit(SB_VERT));
    frame.SetScrollPos(SB_VERT, 40);
    EXPECT_EQ(40, frame.GetScrollPos(SB_VERT));
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE | SIF_RANGE;
    info.nMin = 0;
    info.nMax = 50;
    info.nPage = 10;
    EXPECT_TRUE(frame.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(41, frame.GetScrollLimit(SB_VERT)) << "the last page begins there";
    SCROLLINFO read = {};
    EXPECT_TRUE(frame.GetScrollInfo(SB_VERT, &read));
    EXPECT_EQ(10u, read.nPage);
    EXPECT_EQ(50, read.nMax);
    int low = -1;
    int high = -1;
    frame.GetScrollRange(SB_VERT, &low, &high);
    EXPECT_EQ(0, low);
    EXPECT_EQ(50, high);
}

TEST(Wnd, FontAndRedraw)
{
    CTestFrame frame;
    CButton button;
    button.Create("x", WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 1);
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    button.SetFont(&font);
    EXPECT_EQ(&font, button.GetFont());
    button.SetFont(nullptr);
    EXPECT_EQ(nullptr, button.GetFont());
    PumpPending();
    button.SetRedraw(FALSE);
    EXPECT_FALSE(button.IsWindowVisible());
    button.SetRedraw(TRUE);
    button.InvalidateRect(CRect(0, 0, 5, 5));
    CRect dirty;
    EXPECT_TRUE(button.GetUpdateRect(&dirty));
    button.ValidateRect(nullptr);
    EXPECT_FALSE(button.GetUpdateRect(&dirty));
    button.DestroyWindow();
}

TEST(Wnd, OperationsWithoutAWindowDoNothing)
{
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
    }
    CTestFrame frame;
    PumpPending();
    CWnd none;
    none.Invalidate();
    none.ValidateRect(nullptr);
    none.InvalidateRgn(nullptr);
    EXPECT_FALSE(none.RedrawWindow());
    CRect dirty;
    EXPECT_FALSE(frame.GetUpdateRect(&dirty)) << "null is not every window";
    EXPECT_EQ(0u, none.SetTimer(1, 10, nullptr));
    EXPECT_FALSE(none.PostMessage(WM_APP));
    EXPECT_FALSE(::PeekMessage(&message, nullptr, WM_APP, WM_APP, PM_REMOVE));
    EXPECT_EQ(0, none.SendMessage(WM_APP));
    CString text("old");
    none.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(nullptr, none.GetParent());
    EXPECT_EQ(nullptr, none.GetDlgItem(1));
    EXPECT_EQ(nullptr, none.GetTopLevelParent());
    none.CenterWindow();
    none.SetWindowText("x");
    none.ShowWindow(SW_SHOW);
    none.MoveWindow(0, 0, 1, 1);
    EXPECT_EQ(nullptr, none.UnsubclassWindow());
    EXPECT_FALSE(none.EnableWindow());
}

TEST(Wnd, MessagesToDescendants)
{
    CTestFrame frame;
    CSeeingWnd child;
    child.Create(nullptr, "", 0, CRect(0, 0, 20, 20), &frame, 1);
    CSeeingWnd grandchild;
    grandchild.Create(nullptr, "", 0, CRect(0, 0, 9, 9), &child, 2);
    frame.SendMessageToDescendants(WM_APP, 0, 0, FALSE);
    EXPECT_TRUE(child.HasSeen(WM_APP));
    EXPECT_FALSE(grandchild.HasSeen(WM_APP));
    frame.SendMessageToDescendants(WM_APP + 1);
    EXPECT_TRUE(grandchild.HasSeen(WM_APP + 1));
}
