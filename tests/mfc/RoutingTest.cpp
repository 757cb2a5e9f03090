// Which way commands, notifications and owner drawing take between a control, its parent and the
// application object.

#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

namespace
{
constexpr UINT kControl = 50;

/// A button that may handle its own notifications.
class CReflectingButton : public CButton
{
public:
    CString log;
    bool passOn = false;
    HBRUSH brush = nullptr;

    ~CReflectingButton() override { DestroyWindow(); }
    afx_msg BOOL OnClicked()
    {
        log += "clicked ";
        return !passOn;
    }
    afx_msg void OnDoubleClicked() { log += "double "; }
    afx_msg void OnCustom(NMHDR* header, LRESULT* result)
    {
        log.AppendFormat("custom %d ", static_cast<int>(header->code));
        *result = 99;
    }
    afx_msg BOOL OnOther(NMHDR*, LRESULT* result)
    {
        log += "other ";
        *result = 98;
        return !passOn;
    }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind)
    {
        log.AppendFormat("ctlcolor %d %u ", dc->m_hDC != nullptr, kind);
        return brush;
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CReflectingButton, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &ThisClass::OnClicked)
    ON_CONTROL_REFLECT(BN_DOUBLECLICKED, &ThisClass::OnDoubleClicked)
    ON_NOTIFY_REFLECT(-500, &ThisClass::OnCustom)
    ON_NOTIFY_REFLECT_EX(-501, &ThisClass::OnOther)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()
// clang-format on

class CParentWnd : public CTestFrame
{
public:
    CString log;

    afx_msg void OnClicked() { log += "clicked "; }
    afx_msg void OnRange(UINT id) { log.AppendFormat("range %u ", id); }
    afx_msg void OnChange() { log += "change "; }
    afx_msg void OnCustom(NMHDR*, LRESULT* result)
    {
        log += "custom ";
        *result = 77;
    }
    afx_msg BOOL OnOther(UINT id, NMHDR*, LRESULT* result)
    {
        log.AppendFormat("other %u ", id);
        *result = 76;
        return TRUE;
    }
    afx_msg void OnNotifyRange(UINT id, NMHDR*, LRESULT*) { log.AppendFormat("nrange %u ", id); }

    LRESULT Click(CWnd& control, UINT code = BN_CLICKED)
    {
        log.Empty();
        return SendMessage(WM_COMMAND, MAKEWPARAM(control.GetDlgCtrlID(), code),
                           reinterpret_cast<LPARAM>(control.m_hWnd));
    }
    LRESULT Notify(CWnd& control, int code)
    {
        log.Empty();
        NMHDR header = {control.m_hWnd, static_cast<UINT_PTR>(control.GetDlgCtrlID()),
                        static_cast<UINT>(code)};
        return SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CParentWnd, CTestFrame)
    ON_BN_CLICKED(kControl, &ThisClass::OnClicked)
    ON_CONTROL_RANGE(BN_CLICKED, 60, 62, &ThisClass::OnRange)
    ON_EN_CHANGE(kControl, &ThisClass::OnChange)
    ON_NOTIFY(-500, kControl, &ThisClass::OnCustom)
    ON_NOTIFY_EX(-501, kControl, &ThisClass::OnOther)
    ON_NOTIFY_RANGE(-502, 60, 62, &ThisClass::OnNotifyRange)
END_MESSAGE_MAP()
// clang-format on

class Routing : public testing::Test
{
protected:
    Routing()
    {
        m_control.Create("x", WS_VISIBLE, CRect(0, 0, 50, 20), &m_parent, kControl);
        m_plain.Create("y", WS_VISIBLE, CRect(0, 30, 50, 50), &m_parent, kControl);
        m_ranged.Create("z", WS_VISIBLE, CRect(0, 60, 50, 80), &m_parent, 61);
    }
    ~Routing() override
    {
        m_plain.DestroyWindow();
        m_ranged.DestroyWindow();
    }

    CParentWnd m_parent;
    CReflectingButton m_control;
    CButton m_plain;
    CButton m_ranged;
};
} // namespace

TEST_F(Routing, ControlIsAskedFirst)
{
    EXPECT_EQ(1, m_parent.Click(m_control));
    EXPECT_STREQ("clicked ", m_control.log);
    EXPECT_STREQ("", m_parent.log) << "it has handled the click";

    m_control.passOn = true;
    EXPECT_EQ(1, m_parent.Click(m_control));
    EXPECT_STREQ("clicked ", m_parent.log) << "it has passed the click on";

    m_parent.Click(m_plain);
    EXPECT_STREQ("clicked ", m_parent.log);
}

TEST_F(Routing, CodesAreKeptApart)
{
    m_parent.Click(m_control, BN_DOUBLECLICKED);
    EXPECT_STREQ("double ", m_control.log);
    EXPECT_STREQ("", m_parent.log);
    m_parent.Click(m_control, EN_CHANGE);
    EXPECT_STREQ("change ", m_parent.log);
    EXPECT_EQ(0, m_parent.Click(m_control, EN_UPDATE)) << "nobody handles it";
}

TEST_F(Routing, CommandEntriesAreNoMessageEntries)
{
    m_control.SendMessage(WM_REFLECT_BASE + WM_COMMAND, 1, 2);
    EXPECT_STREQ("", m_control.log);
}

TEST_F(Routing, RangesGetTheId)
{
    m_parent.Click(m_ranged);
    EXPECT_STREQ("range 61 ", m_parent.log);
    m_ranged.SetDlgCtrlID(63);
    m_parent.Click(m_ranged);
    EXPECT_STREQ("", m_parent.log);
}

TEST_F(Routing, RealClicksArrive)
{
    m_plain.SendMessage(BM_CLICK);
    EXPECT_STREQ("clicked ", m_parent.log);
}

TEST_F(Routing, NotificationsAndTheirResults)
{
    EXPECT_EQ(99, m_parent.Notify(m_control, -500));
    EXPECT_STREQ("custom -500 ", m_control.log);
    EXPECT_STREQ("", m_parent.log);
    EXPECT_EQ(77, m_parent.Notify(m_plain, -500));
    EXPECT_STREQ("custom ", m_parent.log);

    EXPECT_EQ(98, m_parent.Notify(m_control, -501));
    m_control.passOn = true;
    EXPECT_EQ(76, m_parent.Notify(m_control, -501));
    EXPECT_STREQ("other 50 ", m_parent.log);

    m_parent.Notify(m_ranged, -502);
    EXPECT_STREQ("nrange 61 ", m_parent.log);
    EXPECT_EQ(0, m_parent.Notify(m_plain, -999));
}

TEST_F(Routing, ColoursOfTheControlCountOverTheParents)
{
    CClientDC dc(&m_control);
    const auto ask = [&](CWnd& control)
    {
        return reinterpret_cast<HBRUSH>(
            m_parent.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                                 reinterpret_cast<LPARAM>(control.m_hWnd)));
    };
    const HBRUSH standard = ask(m_plain);
    m_control.brush = static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    EXPECT_EQ(m_control.brush, ask(m_control));
    EXPECT_STREQ("ctlcolor 1 3 ", m_control.log);
    m_control.brush = nullptr;
    EXPECT_EQ(standard, ask(m_control)) << "without a brush the default counts";
}

namespace
{
class CScrollingParent : public CTestFrame
{
public:
    CString log;
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        log.AppendFormat("h %u %u ", code, pos);
        CTestFrame::OnHScroll(code, pos, bar);
    }
    DECLARE_MESSAGE_MAP()
};

class CReflectingScrollBar : public CScrollBar
{
public:
    CString log;
    ~CReflectingScrollBar() override { DestroyWindow(); }
    afx_msg void HScroll(UINT code, UINT pos) { log.AppendFormat("H %u %u ", code, pos); }
    afx_msg void VScroll(UINT code, UINT pos) { log.AppendFormat("V %u %u ", code, pos); }
    afx_msg LRESULT OnReflected(WPARAM wParam, LPARAM)
    {
        log.AppendFormat("any %u ", wParam);
        return 0;
    }
    afx_msg void ParentNotify(UINT message, LPARAM)
    {
        log.AppendFormat("notify %u ", LOWORD(message));
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CScrollingParent, CTestFrame)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CReflectingScrollBar, CScrollBar)
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
    ON_MESSAGE_REFLECT(WM_VKEYTOITEM, &ThisClass::OnReflected)
END_MESSAGE_MAP()
// clang-format on
} // namespace

TEST(Reflection, ScrollingGoesToTheParentAndFromItsDefaultToTheBar)
{
    CScrollingParent parent;
    CReflectingScrollBar bar;
    bar.Create(SBS_HORZ | WS_VISIBLE, CRect(0, 0, 100, 20), &parent, 1);
    EXPECT_STREQ("notify 1 ", bar.log) << "of its own making";
    bar.log.Empty();
    const LPARAM handle = reinterpret_cast<LPARAM>(bar.m_hWnd);
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 9), handle);
    EXPECT_STREQ("h 5 9 ", parent.log);
    EXPECT_STREQ("H 5 9 ", bar.log);
    bar.log.Empty();
    parent.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), handle);
    EXPECT_STREQ("V 1 0 ", bar.log);
    bar.log.Empty();
    parent.SendMessage(WM_HSCROLL, SB_LINEDOWN, 0);
    EXPECT_STREQ("", bar.log) << "a bar of the window itself";
    parent.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, 1), handle);
    EXPECT_STREQ("notify 1 ", bar.log);
    bar.log.Empty();
    parent.SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, 1), handle);
    EXPECT_STREQ("", bar.log) << "only the making and the end of a child are its own";
}

namespace
{
class CDrawnButton : public CButton
{
public:
    CString log;
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        log.AppendFormat("draw %u ", item->CtlID);
        EXPECT_EQ(m_hWnd, item->hwndItem);
    }
};

/// Owner drawing of a list and of a combo box, which have the same operations.
template <typename Base>
class CDrawn : public Base
{
public:
    int drawn = 0;
    int measured = 0;
    int deleted = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemHeight = 17;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override
    {
        // Downwards, which no default would do.
        const auto a = static_cast<LONG>(item->itemData1);
        const auto b = static_cast<LONG>(item->itemData2);
        return a > b ? -1 : a < b ? 1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
};

class CDrawnDlg : public CDialog
{
public:
    ~CDrawnDlg() override { DestroyWindow(); }
    CDrawnButton button;
    CDrawn<CListBox> list;
    CDrawn<CComboBox> combo;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_BUTTON, button);
        DDX_Control(pDX, IDC_LIST, list);
        DDX_Control(pDX, IDC_COMBO, combo);
    }
};
} // namespace

TEST(OwnerDraw, VirtualOperationsOfTheControls)
{
    CDrawnDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_OWNER_DRAW));
    ASSERT_NE(nullptr, dialog.button.m_hWnd);
    const auto add = [](CWnd& control, UINT message, LPARAM data)
    {
        return control.SendMessage(message, 0, data);
    };
    EXPECT_EQ(0, add(dialog.list, LB_ADDSTRING, 5));
    EXPECT_EQ(0, add(dialog.list, LB_ADDSTRING, 9)) << "CompareItem sorts downwards";
    EXPECT_EQ(2, add(dialog.list, LB_ADDSTRING, 1));
    EXPECT_EQ(9u, dialog.list.GetItemData(0));
    EXPECT_EQ(3, dialog.list.measured);
    EXPECT_EQ(17, dialog.list.GetItemHeight(1));
    add(dialog.combo, CB_ADDSTRING, 5);
    EXPECT_GE(dialog.combo.measured, 1);

    dialog.ShowWindow(SW_SHOW);
    dialog.UpdateWindow();
    PumpPending();
    EXPECT_GE(dialog.list.drawn, 3);
    EXPECT_GE(dialog.button.log.Find("draw 1012 "), 0);

    dialog.list.DeleteString(0);
    EXPECT_EQ(1, dialog.list.deleted);
    dialog.list.ResetContent();
    EXPECT_EQ(3, dialog.list.deleted);
    dialog.combo.ResetContent();
    EXPECT_EQ(1, dialog.combo.deleted);
}

TEST(OwnerDraw, ControlWithoutAnObjectFallsToTheDefault)
{
    CTestFrame parent;
    const HWND list = ::CreateWindow("LISTBOX", "", WS_CHILD | LBS_OWNERDRAWFIXED, 0, 0, 50, 50,
                                     parent, reinterpret_cast<HMENU>(7), nullptr, nullptr);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_LISTBOX;
    item.CtlID = 7;
    item.hwndItem = list;
    EXPECT_EQ(TRUE, parent.SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&item)));
}

namespace
{
class CCommandDlg : public CDialog
{
public:
    ~CCommandDlg() override { DestroyWindow(); }
    int clicks = 0;
    afx_msg void OnClick() { ++clicks; }
    DECLARE_MESSAGE_MAP()
};

class CCommandFrame : public CTestFrame
{
public:
    int commands = 0;
    int clicks = 0;
    afx_msg void OnFrameCommand() { ++commands; }
    afx_msg void OnClick() { ++clicks; }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CCommandDlg, CDialog)
    ON_BN_CLICKED(IDC_BUTTON, &ThisClass::OnClick)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CCommandFrame, CTestFrame)
    ON_COMMAND(0x8100, &ThisClass::OnFrameCommand)
    ON_COMMAND(IDC_BUTTON, &ThisClass::OnFrameCommand)
    ON_COMMAND(0xF100, &ThisClass::OnFrameCommand)
END_MESSAGE_MAP()
// clang-format on
} // namespace

TEST(DialogRouting, CommandsGoToTheParentAndToTheApplication)
{
    CCommandFrame frame;
    CCommandDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &frame));
    dialog.SendMessage(WM_COMMAND, 0x8100);
    EXPECT_EQ(1, frame.commands);

    theApp.commands = 0;
    dialog.SendMessage(WM_COMMAND, kAppCommand);
    EXPECT_EQ(1, theApp.commands);
    EXPECT_EQ(1, frame.commands);
}

TEST(DialogRouting, NotificationsOfControlsStay)
{
    CCommandFrame frame;
    CCommandDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &frame));
    dialog.GetDlgItem(IDC_BUTTON)->SendMessage(BM_CLICK);
    EXPECT_EQ(1, dialog.clicks);
    CDialog deaf;
    ASSERT_TRUE(deaf.Create(IDD_PLAIN, &frame));
    deaf.GetDlgItem(IDC_BUTTON)->SendMessage(BM_CLICK);
    EXPECT_EQ(0, frame.commands) << "also those that nobody handles";

    dialog.SendMessage(WM_COMMAND, 0xF100);
    EXPECT_EQ(0, frame.commands) << "commands of the system stay as well";
}
