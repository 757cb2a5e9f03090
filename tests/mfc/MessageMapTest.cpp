#include "tests/mfc/TestApp.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace
{
constexpr UINT kFirst = WM_APP + 1;
constexpr UINT kBaseOnly = WM_APP + 2;
constexpr UINT kTwice = WM_APP + 3;
const UINT registered = ::RegisterWindowMessage("mfc_tests_message");

class CBaseWnd : public CWnd
{
public:
    std::string log;

    ~CBaseWnd() override { DestroyWindow(); }
    LRESULT OnFirst(WPARAM, LPARAM) { return Note("base.first ", 1); }
    LRESULT OnBaseOnly(WPARAM wParam, LPARAM lParam)
    {
        return Note("base.only ", static_cast<LRESULT>(wParam) + lParam);
    }
    LRESULT OnTwice(WPARAM, LPARAM) { return Note("base.twice ", 2); }
    afx_msg void OnRange(UINT id) { log += "base.range" + std::to_string(id) + " "; }
    afx_msg void OnOne() { log += "base.one "; }
    afx_msg void OnBaseCommand() { log += "base.command "; }

protected:
    LRESULT Note(const char* what, LRESULT result)
    {
        log += what;
        return result;
    }
    DECLARE_MESSAGE_MAP()
};

class CDerivedWnd : public CBaseWnd
{
public:
    LRESULT OnFirst(WPARAM, LPARAM) { return Note("derived.first ", 11); }
    LRESULT OnTwiceA(WPARAM, LPARAM) { return Note("derived.twiceA ", 12); }
    LRESULT OnTwiceB(WPARAM, LPARAM) { return Note("derived.twiceB ", 13); }
    LRESULT OnRegistered(WPARAM wParam, LPARAM)
    {
        return Note("registered ", static_cast<LRESULT>(wParam));
    }
    afx_msg void OnOne() { log += "derived.one "; }
    afx_msg BOOL OnEx(UINT id)
    {
        log += "ex" + std::to_string(id) + " ";
        return passOn ? FALSE : TRUE;
    }
    bool passOn = false;

    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CBaseWnd, CWnd)
    ON_MESSAGE(kFirst, &ThisClass::OnFirst)
    ON_MESSAGE(kBaseOnly, &ThisClass::OnBaseOnly)
    ON_MESSAGE(kTwice, &ThisClass::OnTwice)
    ON_COMMAND_RANGE(100, 110, &ThisClass::OnRange)
    ON_COMMAND(105, &ThisClass::OnOne)
    ON_COMMAND(200, &ThisClass::OnBaseCommand)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDerivedWnd, CBaseWnd)
    ON_MESSAGE(kFirst, &ThisClass::OnFirst)
    ON_MESSAGE(kTwice, &ThisClass::OnTwiceA)
    ON_MESSAGE(kTwice, &ThisClass::OnTwiceB)
    ON_REGISTERED_MESSAGE(registered, &ThisClass::OnRegistered)
    ON_COMMAND(107, &ThisClass::OnOne)
    ON_COMMAND_EX(300, &ThisClass::OnEx)
END_MESSAGE_MAP()
// clang-format on

/// Handlers that go over windows of several classes.
template <typename TWindow>
class COverWnd : public TWindow
{
public:
    LRESULT OnFirst(WPARAM, LPARAM) { return this->Note("over.first ", 21); }
    afx_msg void OnOne() { this->log += "over.one "; }

    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_TEMPLATE_MESSAGE_MAP(COverWnd, TWindow, TWindow)
    ON_MESSAGE(kFirst, &ThisClass::OnFirst)
    ON_COMMAND(200, &ThisClass::OnOne)
END_MESSAGE_MAP()
// clang-format on

std::string Sent(CBaseWnd& wnd, UINT message, WPARAM wParam = 0)
{
    wnd.log.clear();
    wnd.SendMessage(message, wParam);
    return wnd.log;
}
} // namespace

TEST(MessageMap, FirstFittingEntryFromTheClassUpwards)
{
    CTestFrame frame;
    CDerivedWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    EXPECT_EQ("derived.first ", Sent(wnd, kFirst));
    EXPECT_EQ("base.only ", Sent(wnd, kBaseOnly));
    EXPECT_EQ("derived.twiceA ", Sent(wnd, kTwice));
    EXPECT_EQ(7, wnd.SendMessage(kBaseOnly, 3, 4));

    CBaseWnd base;
    base.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 2);
    EXPECT_EQ("base.first ", Sent(base, kFirst));
}

TEST(MessageMap, TemplateStandsBeforeTheBaseItIsGiven)
{
    CTestFrame frame;
    COverWnd<CBaseWnd> overBase;
    overBase.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    EXPECT_EQ("over.first ", Sent(overBase, kFirst));
    EXPECT_EQ("over.one ", Sent(overBase, WM_COMMAND, 200));
    EXPECT_EQ("base.range105 ", Sent(overBase, WM_COMMAND, 105));
    EXPECT_EQ("base.twice ", Sent(overBase, kTwice));

    COverWnd<CDerivedWnd> overDerived;
    overDerived.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 2);
    EXPECT_EQ("over.first ", Sent(overDerived, kFirst));
    EXPECT_EQ("derived.twiceA ", Sent(overDerived, kTwice));
    EXPECT_EQ("derived.one ", Sent(overDerived, WM_COMMAND, 107));
    EXPECT_EQ("base.only ", Sent(overDerived, kBaseOnly));
}

TEST(MessageMap, RegisteredMessages)
{
    CTestFrame frame;
    CDerivedWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    ASSERT_GE(registered, 0xC000u);
    EXPECT_EQ(5, wnd.SendMessage(registered, 5));
    EXPECT_EQ("registered ", Sent(wnd, registered));
    EXPECT_EQ("", Sent(wnd, ::RegisterWindowMessage("mfc_tests_other")));
}

TEST(MessageMap, CommandsAndRanges)
{
    CTestFrame frame;
    CDerivedWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    EXPECT_EQ("base.range100 ", Sent(wnd, WM_COMMAND, 100));
    EXPECT_EQ("base.range105 ", Sent(wnd, WM_COMMAND, 105)) << "the range stands first";
    EXPECT_EQ("derived.one ", Sent(wnd, WM_COMMAND, 107)) << "the class stands before its base";
    EXPECT_EQ("base.range110 ", Sent(wnd, WM_COMMAND, 110));
    EXPECT_EQ("", Sent(wnd, WM_COMMAND, 111));
    EXPECT_EQ("", Sent(wnd, WM_COMMAND, 99));
    EXPECT_EQ("base.command ", Sent(wnd, WM_COMMAND, 200));
    EXPECT_EQ("base.command ", Sent(wnd, WM_COMMAND, MAKEWPARAM(200, 1)))
        << "an accelerator is a command as well";
}

TEST(MessageMap, ExtendedHandlerMayPassOn)
{
    CTestFrame frame;
    CDerivedWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    EXPECT_TRUE(wnd.OnCmdMsg(300, CN_COMMAND, nullptr, nullptr));
    wnd.passOn = true;
    EXPECT_FALSE(wnd.OnCmdMsg(300, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ("ex300 ex300 ", wnd.log);
}

TEST(MessageMap, HandlerCanBeAskedForWithoutCallingIt)
{
    CDerivedWnd wnd;
    AFX_CMDHANDLERINFO info = {};
    EXPECT_TRUE(wnd.OnCmdMsg(107, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&wnd, info.pTarget);
    EXPECT_NE(nullptr, info.pmf);
    EXPECT_EQ("", wnd.log);
    EXPECT_FALSE(wnd.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
}

namespace
{
/// Something beside a window, with members and virtual operations of its own.
class CMixin
{
public:
    virtual ~CMixin() = default;
    virtual int Answer() const { return m_answer; }

private:
    int m_answer = 42;
};

class CMixedWnd : public CBaseWnd, public CMixin
{
public:
    LRESULT OnFirst(WPARAM, LPARAM) { return Answer(); }
    afx_msg virtual void OnVirtual() { log += "mixed "; }
    DECLARE_MESSAGE_MAP()
};

class CMostDerivedWnd : public CMixedWnd
{
public:
    afx_msg void OnVirtual() override { log += "most derived "; }
};

// clang-format off
BEGIN_MESSAGE_MAP(CMixedWnd, CBaseWnd)
    ON_MESSAGE(kFirst, &ThisClass::OnFirst)
    ON_COMMAND(400, &ThisClass::OnVirtual)
END_MESSAGE_MAP()
// clang-format on
} // namespace

TEST(MessageMap, HandlersOfMixedClassesAndVirtualHandlers)
{
    CTestFrame frame;
    CMixedWnd mixed;
    mixed.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 1);
    EXPECT_EQ(42, mixed.SendMessage(kFirst));
    EXPECT_EQ("mixed ", Sent(mixed, WM_COMMAND, 400));
    CMostDerivedWnd derived;
    derived.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &frame, 2);
    EXPECT_EQ("most derived ", Sent(derived, WM_COMMAND, 400));
}

namespace
{
template <AfxSig sig, typename Given, typename = void>
struct CFits : std::false_type
{
};

template <AfxSig sig, typename Given>
struct CFits<sig, Given, std::void_t<decltype(static_cast<AfxHandler<sig>>(std::declval<Given>()))>>
    : std::true_type
{
};
} // namespace

TEST(MessageMap, OnlyTheExactSignatureCompiles)
{
    EXPECT_TRUE((CFits<AfxSig_v_uii, void (CBaseWnd::*)(UINT, int, int)>::value));
    EXPECT_FALSE((CFits<AfxSig_v_uii, void (CBaseWnd::*)(int, int, int)>::value));
    EXPECT_FALSE((CFits<AfxSig_v_uii, int (CBaseWnd::*)(UINT, int, int)>::value));
    EXPECT_FALSE((CFits<AfxSig_v_uii, void (CBaseWnd::*)(UINT, int)>::value));
    EXPECT_TRUE((CFits<AfxSig_b_D, BOOL (CBaseWnd::*)(CDC*)>::value));
    EXPECT_FALSE((CFits<AfxSig_b_D, void (CBaseWnd::*)(CDC*)>::value));
    EXPECT_FALSE((CFits<AfxSig_l_wl, LRESULT (CBaseWnd::*)()>::value));
    EXPECT_FALSE((CFits<AfxSig_v, void (CTestApp::*)()>::value)) << "not of a window";
    EXPECT_TRUE((CFits<AfxSigCmd_v, void (CTestApp::*)()>::value));
}

namespace
{
/// A window with a handler of every window message. Each notes its arguments; those that the
/// system needs an answer to do the default as well.
class CEveryWnd : public CWnd
{
public:
    CString log;
    bool wheelWanted = true;
    bool defaults = true;

    ~CEveryWnd() override { DestroyWindow(); }

    /// What the handler of a message notes, and what it answers.
    CString Note(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result = nullptr)
    {
        log.Empty();
        defaults = false;
        const LRESULT answer = SendMessage(message, wParam, lParam);
        defaults = true;
        if (result)
        {
            *result = answer;
        }
        return log;
    }

    afx_msg int OnCreate(LPCREATESTRUCT cs)
    {
        log.AppendFormat("create %d ", static_cast<int>(cs->cx));
        return CWnd::OnCreate(cs);
    }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT cs)
    {
        log += "nccreate ";
        return CWnd::OnNcCreate(cs);
    }
    afx_msg void OnDestroy() { log += "destroy "; }
    afx_msg void OnClose() { log += "close "; }
    afx_msg void OnSize(UINT type, int cx, int cy)
    {
        log.AppendFormat("size %u %d %d ", type, cx, cy);
    }
    afx_msg void OnMove(int x, int y) { log.AppendFormat("move %d %d ", x, y); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info) { Pointer("minmax", info); }
    afx_msg void OnPaint()
    {
        log += "paint ";
        Default();
    }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        Handle("erase", dc->m_hDC);
        return 5;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind)
    {
        Handle("ctlcolor", dc->m_hDC);
        log.AppendFormat("%u %d ", kind, wnd == this);
        return static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    }
    afx_msg void OnShowWindow(BOOL show, UINT status)
    {
        log.AppendFormat("show %d %u ", show, status);
    }
    afx_msg void OnEnable(BOOL enable) { log.AppendFormat("enable %d ", enable); }
    afx_msg void OnSetFocus(CWnd* old) { Wnd("setfocus", old); }
    afx_msg void OnKillFocus(CWnd* next) { Wnd("killfocus", next); }
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized)
    {
        Wnd("activate", other);
        log.AppendFormat("%u %d ", state, minimized);
    }
    afx_msg void OnActivateApp(BOOL active, DWORD thread)
    {
        log.AppendFormat("activateapp %d %lu ", active, thread);
    }
    afx_msg int OnMouseActivate(CWnd* top, UINT hit, UINT message)
    {
        Wnd("mouseactivate", top);
        log.AppendFormat("%u %u ", hit, message);
        return MA_NOACTIVATE;
    }
    afx_msg void OnCancelMode() { log += "cancelmode "; }
    afx_msg void OnCaptureChanged(CWnd* wnd) { Wnd("capturechanged", wnd); }
    afx_msg void OnLButtonDown(UINT flags, CPoint pt) { Mouse("ldown", flags, pt); }
    afx_msg void OnLButtonUp(UINT flags, CPoint pt) { Mouse("lup", flags, pt); }
    afx_msg void OnLButtonDblClk(UINT flags, CPoint pt) { Mouse("ldbl", flags, pt); }
    afx_msg void OnRButtonDown(UINT flags, CPoint pt) { Mouse("rdown", flags, pt); }
    afx_msg void OnRButtonUp(UINT flags, CPoint pt) { Mouse("rup", flags, pt); }
    afx_msg void OnRButtonDblClk(UINT flags, CPoint pt) { Mouse("rdbl", flags, pt); }
    afx_msg void OnMButtonDown(UINT flags, CPoint pt) { Mouse("mdown", flags, pt); }
    afx_msg void OnMButtonUp(UINT flags, CPoint pt) { Mouse("mup", flags, pt); }
    afx_msg void OnMButtonDblClk(UINT flags, CPoint pt) { Mouse("mdbl", flags, pt); }
    afx_msg void OnMouseMove(UINT flags, CPoint pt) { Mouse("mousemove", flags, pt); }
    afx_msg void OnMouseHover(UINT flags, CPoint pt) { Mouse("hover", flags, pt); }
    afx_msg void OnMouseLeave() { log += "leave "; }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint pt)
    {
        Mouse("wheel", flags, pt);
        log.AppendFormat("%d ", delta);
        return wheelWanted;
    }
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message)
    {
        Wnd("setcursor", wnd);
        log.AppendFormat("%u %u ", hit, message);
        return 3;
    }
    afx_msg void OnNcCalcSize(BOOL calc, NCCALCSIZE_PARAMS* params)
    {
        log.AppendFormat("nccalcsize %d ", calc);
        if (!defaults)
        {
            Pointer("", params);
            return;
        }
        CWnd::OnNcCalcSize(calc, params);
    }
    afx_msg void OnNcPaint() { log += "ncpaint "; }
    afx_msg LRESULT OnNcHitTest(CPoint pt)
    {
        Mouse("nchittest", 0, pt);
        return HTCAPTION;
    }
    afx_msg BOOL OnNcActivate(BOOL active)
    {
        log.AppendFormat("ncactivate %d ", active);
        return 4;
    }
    afx_msg void OnNcLButtonDown(UINT hit, CPoint pt) { Mouse("ncldown", hit, pt); }
    afx_msg void OnNcLButtonUp(UINT hit, CPoint pt) { Mouse("nclup", hit, pt); }
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint pt) { Mouse("ncldbl", hit, pt); }
    afx_msg void OnNcRButtonDown(UINT hit, CPoint pt) { Mouse("ncrdown", hit, pt); }
    afx_msg void OnNcRButtonUp(UINT hit, CPoint pt) { Mouse("ncrup", hit, pt); }
    afx_msg void OnNcMouseMove(UINT hit, CPoint pt) { Mouse("ncmove", hit, pt); }
    afx_msg void OnKeyDown(UINT ch, UINT count, UINT flags) { Key("keydown", ch, count, flags); }
    afx_msg void OnKeyUp(UINT ch, UINT count, UINT flags) { Key("keyup", ch, count, flags); }
    afx_msg void OnChar(UINT ch, UINT count, UINT flags) { Key("char", ch, count, flags); }
    afx_msg void OnSysKeyDown(UINT ch, UINT count, UINT flags) { Key("sysdown", ch, count, flags); }
    afx_msg void OnSysKeyUp(UINT ch, UINT count, UINT flags) { Key("sysup", ch, count, flags); }
    afx_msg void OnSysChar(UINT ch, UINT count, UINT flags) { Key("syschar", ch, count, flags); }
    afx_msg void OnTimer(UINT_PTR id) { log.AppendFormat("timer %u ", id); }
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        Wnd("hscroll", bar);
        log.AppendFormat("%u %u ", code, pos);
    }
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        Wnd("vscroll", bar);
        log.AppendFormat("%u %u ", code, pos);
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item) { Item("draw", id, item); }
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) { Item("measure", id, item); }
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT item)
    {
        Item("compare", id, item);
        return -1;
    }
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT item) { Item("delete", id, item); }
    afx_msg UINT OnGetDlgCode()
    {
        log += "dlgcode ";
        return DLGC_WANTTAB;
    }
    afx_msg void OnSysCommand(UINT id, LPARAM lParam)
    {
        log.AppendFormat("syscommand %u %ld ", id, lParam);
    }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam)
    {
        log.AppendFormat("parentnotify %u %ld ", message, lParam);
    }
    afx_msg void OnContextMenu(CWnd* wnd, CPoint pt)
    {
        Wnd("context", wnd);
        Mouse("", 0, pt);
    }
    afx_msg void OnWindowPosChanging(WINDOWPOS* pos) { Pointer("poschanging", pos); }
    afx_msg void OnWindowPosChanged(WINDOWPOS* pos) { Pointer("poschanged", pos); }
    afx_msg void OnStyleChanging(int type, LPSTYLESTRUCT style)
    {
        Item("stylechanging", type, style);
    }
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style)
    {
        Item("stylechanged", type, style);
    }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section)
    {
        log.AppendFormat("setting %u %s ", flags, section);
    }
    afx_msg void OnSysColorChange() { log += "syscolor "; }

protected:
    void Wnd(const char* what, CWnd* wnd)
    {
        log.AppendFormat("%s %s ", what, wnd == this ? "this" : "null");
    }
    void Handle(const char* what, HDC dc) { log.AppendFormat("%s %d ", what, dc != nullptr); }
    void Mouse(const char* what, UINT flags, CPoint pt)
    {
        log.AppendFormat("%s %u %ld,%ld ", what, flags, pt.x, pt.y);
    }
    void Key(const char* what, UINT ch, UINT count, UINT flags)
    {
        log.AppendFormat("%s %u %u %u ", what, ch, count, flags);
    }
    /// A pointer to a number that the test chose.
    void Pointer(const char* what, const void* pointer)
    {
        log.AppendFormat("%s %d ", what, *static_cast<const int*>(pointer));
    }
    void Item(const char* what, int id, const void* pointer)
    {
        log.AppendFormat("%s %d %d ", what, id, *static_cast<const int*>(pointer));
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CEveryWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_NCCREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_GETMINMAXINFO()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_SHOWWINDOW()
    ON_WM_ENABLE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_MOUSEACTIVATE()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_NCACTIVATE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CHAR()
    ON_WM_SYSKEYDOWN()
    ON_WM_SYSKEYUP()
    ON_WM_SYSCHAR()
    ON_WM_TIMER()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_GETDLGCODE()
    ON_WM_SYSCOMMAND()
    ON_WM_PARENTNOTIFY()
    ON_WM_CONTEXTMENU()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_STYLECHANGING()
    ON_WM_STYLECHANGED()
    ON_WM_SETTINGCHANGE()
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()
// clang-format on

class EveryMessage : public testing::Test
{
protected:
    EveryMessage() { m_wnd.Create(nullptr, "", 0, CRect(0, 0, 50, 50), &m_frame, 1); }

    void Expect(const char* log, UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                LRESULT result = 0)
    {
        LRESULT answer = 0;
        EXPECT_STREQ(log, m_wnd.Note(message, wParam, lParam, &answer)) << message;
        EXPECT_EQ(result, answer) << log;
    }
    WPARAM OwnHandleW() const { return reinterpret_cast<WPARAM>(m_wnd.m_hWnd); }
    LPARAM OwnHandleL() const { return reinterpret_cast<LPARAM>(m_wnd.m_hWnd); }

    CTestFrame m_frame;
    CEveryWnd m_wnd;
};

constexpr LPARAM kPlace = static_cast<LPARAM>(0xFFFE0007); // x 7, y -2
} // namespace

TEST_F(EveryMessage, Creation)
{
    EXPECT_STREQ("nccreate nccalcsize 0 create 50 size 0 50 50 move 0 0 ", m_wnd.log);
    m_wnd.log.Empty();
    m_wnd.DestroyWindow();
    EXPECT_GE(m_wnd.log.Find("destroy "), 0);
}

TEST_F(EveryMessage, WindowState)
{
    int number = 17;
    const LPARAM pointer = reinterpret_cast<LPARAM>(&number);
    Expect("close ", WM_CLOSE);
    Expect("size 2 65535 40000 ", WM_SIZE, 2, static_cast<LPARAM>(MAKELONG(65535, 40000)));
    Expect("move 7 -2 ", WM_MOVE, 0, kPlace);
    Expect("minmax 17 ", WM_GETMINMAXINFO, 0, pointer);
    Expect("show 1 3 ", WM_SHOWWINDOW, 1, 3);
    Expect("enable 1 ", WM_ENABLE, 1);
    Expect("poschanging 17 ", WM_WINDOWPOSCHANGING, 0, pointer);
    Expect("poschanged 17 ", WM_WINDOWPOSCHANGED, 0, pointer);
    Expect("stylechanging -16 17 ", WM_STYLECHANGING, static_cast<WPARAM>(-16), pointer);
    Expect("stylechanged -20 17 ", WM_STYLECHANGED, static_cast<WPARAM>(-20), pointer);
    Expect("nccalcsize 1  17 ", WM_NCCALCSIZE, 1, pointer);
    Expect("ncactivate 1 ", WM_NCACTIVATE, 1, 0, 4);
    Expect("setting 9 intl ", WM_SETTINGCHANGE, 9, reinterpret_cast<LPARAM>("intl"));
    Expect("syscolor ", WM_SYSCOLORCHANGE);
    Expect("parentnotify 1 5 ", WM_PARENTNOTIFY, 1, 5);
    Expect("syscommand 61472 7 ", WM_SYSCOMMAND, SC_MINIMIZE, 7);
    Expect("timer 12 ", WM_TIMER, 12);
}

TEST_F(EveryMessage, Painting)
{
    CClientDC dc(&m_wnd);
    const WPARAM context = reinterpret_cast<WPARAM>(dc.m_hDC);
    Expect("paint ", WM_PAINT);
    Expect("erase 1 ", WM_ERASEBKGND, context, 0, 5);
    Expect("ncpaint ", WM_NCPAINT, 1);
    const LRESULT gray = reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH));
    const UINT messages[] = {WM_CTLCOLORMSGBOX, WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX,
                             WM_CTLCOLORBTN,    WM_CTLCOLORDLG,  WM_CTLCOLORSCROLLBAR,
                             WM_CTLCOLORSTATIC};
    const UINT kinds[] = {CTLCOLOR_MSGBOX, CTLCOLOR_EDIT,      CTLCOLOR_LISTBOX, CTLCOLOR_BTN,
                          CTLCOLOR_DLG,    CTLCOLOR_SCROLLBAR, CTLCOLOR_STATIC};
    for (int i = 0; i < 7; ++i)
    {
        CString expected;
        expected.Format("ctlcolor 1 %u 1 ", kinds[i]);
        Expect(expected, messages[i], context, OwnHandleL(), gray);
    }
}

TEST_F(EveryMessage, Focus)
{
    Expect("setfocus this ", WM_SETFOCUS, OwnHandleW());
    Expect("setfocus null ", WM_SETFOCUS);
    Expect("killfocus this ", WM_KILLFOCUS, OwnHandleW());
    Expect("activate this 2 1 ", WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), OwnHandleL());
    Expect("activateapp 1 77 ", WM_ACTIVATEAPP, 1, 77);
    Expect("mouseactivate this 1 513 ", WM_MOUSEACTIVATE, OwnHandleW(),
           MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN), MA_NOACTIVATE);
    Expect("cancelmode ", WM_CANCELMODE);
    Expect("capturechanged this ", WM_CAPTURECHANGED, 0, OwnHandleL());
    Expect("dlgcode ", WM_GETDLGCODE, 0, 0, DLGC_WANTTAB);
}

TEST_F(EveryMessage, Mouse)
{
    const struct
    {
        UINT message;
        const char* log;
    } cases[] = {
        {WM_LBUTTONDOWN, "ldown"},   {WM_LBUTTONUP, "lup"},          {WM_LBUTTONDBLCLK, "ldbl"},
        {WM_RBUTTONDOWN, "rdown"},   {WM_RBUTTONUP, "rup"},          {WM_RBUTTONDBLCLK, "rdbl"},
        {WM_MBUTTONDOWN, "mdown"},   {WM_MBUTTONUP, "mup"},          {WM_MBUTTONDBLCLK, "mdbl"},
        {WM_MOUSEMOVE, "mousemove"}, {WM_MOUSEHOVER, "hover"},       {WM_NCLBUTTONDOWN, "ncldown"},
        {WM_NCLBUTTONUP, "nclup"},   {WM_NCLBUTTONDBLCLK, "ncldbl"}, {WM_NCRBUTTONDOWN, "ncrdown"},
        {WM_NCRBUTTONUP, "ncrup"},   {WM_NCMOUSEMOVE, "ncmove"},
    };
    for (const auto& c : cases)
    {
        Expect(CString(c.log) + " 5 7,-2 ", c.message, 5, kPlace);
    }
    Expect("leave ", WM_MOUSELEAVE);
    Expect("nchittest 0 7,-2 ", WM_NCHITTEST, 0, kPlace, HTCAPTION);
    Expect("setcursor this 1 512 ", WM_SETCURSOR, OwnHandleW(), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE),
           3);
    Expect("context this  0 7,-2 ", WM_CONTEXTMENU, OwnHandleW(), kPlace);
}

TEST_F(EveryMessage, WheelThatIsNotWantedGoesOnToTheParent)
{
    class CWheelFrame : public CTestFrame
    {
    public:
        int wheels = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            wheels += message == WM_MOUSEWHEEL;
            return CTestFrame::WindowProc(message, wParam, lParam);
        }
    };
    CWheelFrame frame;
    CEveryWnd wnd;
    wnd.Create(nullptr, "", 0, CRect(0, 0, 50, 50), &frame, 1);
    const WPARAM turn = static_cast<WPARAM>(MAKELONG(8, -120));
    EXPECT_STREQ("wheel 8 7,-2 -120 ", wnd.Note(WM_MOUSEWHEEL, turn, kPlace));
    EXPECT_EQ(0, frame.wheels);
    wnd.wheelWanted = false;
    wnd.Note(WM_MOUSEWHEEL, turn, kPlace);
    EXPECT_EQ(1, frame.wheels);
}

TEST_F(EveryMessage, Keyboard)
{
    const struct
    {
        UINT message;
        const char* log;
    } cases[] = {{WM_KEYDOWN, "keydown"},    {WM_KEYUP, "keyup"},    {WM_CHAR, "char"},
                 {WM_SYSKEYDOWN, "sysdown"}, {WM_SYSKEYUP, "sysup"}, {WM_SYSCHAR, "syschar"}};
    for (const auto& c : cases)
    {
        Expect(CString(c.log) + " 65 2 49153 ", c.message, 'A',
               static_cast<LPARAM>(MAKELONG(2, 0xC001)));
    }
}

TEST_F(EveryMessage, ScrollingAndItems)
{
    Expect("hscroll null 5 33 ", WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 33));
    Expect("vscroll this 4 0 ", WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0), OwnHandleL());
    int number = 17;
    const LPARAM pointer = reinterpret_cast<LPARAM>(&number);
    Expect("draw 3 17 ", WM_DRAWITEM, 3, pointer, TRUE);
    Expect("measure 3 17 ", WM_MEASUREITEM, 3, pointer, TRUE);
    Expect("compare 3 17 ", WM_COMPAREITEM, 3, pointer, -1);
    Expect("delete 3 17 ", WM_DELETEITEM, 3, pointer, TRUE);
}

namespace
{
/// Its map names handlers that it doesn't have: those of CWnd.
class CDefaultingWnd : public CWnd
{
public:
    ~CDefaultingWnd() override { DestroyWindow(); }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CDefaultingWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_NCHITTEST()
    ON_WM_NCCALCSIZE()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()
// clang-format on
} // namespace

TEST(MessageMap, HandlersOfCWndDoTheDefault)
{
    CTestFrame frame;
    CDefaultingWnd wnd;
    ASSERT_TRUE(wnd.Create(nullptr, "text", WS_VISIBLE, CRect(0, 0, 5, 5), &frame, 1));
    wnd.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>("new"));
    CString text;
    wnd.GetWindowText(text);
    EXPECT_STREQ("new", text);
    wnd.Invalidate();
    wnd.SendMessage(WM_PAINT);
    EXPECT_FALSE(::GetUpdateRect(wnd, nullptr, FALSE)) << "the default paint validates";
    EXPECT_EQ(HTCLIENT,
              wnd.SendMessage(WM_NCHITTEST, 0,
                              [&]
                              {
                                  CPoint inside(2, 2);
                                  wnd.ClientToScreen(&inside);
                                  return static_cast<LPARAM>(MAKELONG(inside.x, inside.y));
                              }()));
}
