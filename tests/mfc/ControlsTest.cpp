#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <afxcmn.h>
#include <gtest/gtest.h>

namespace
{
const CRect kPlace(0, 0, 100, 80);

/// A control with a parent to be in.
template <typename Control>
class CInFrame : public Control
{
public:
    ~CInFrame() override { this->DestroyWindow(); }
    CTestFrame frame;
};

CString ClassOf(const CWnd& wnd)
{
    char name[64] = "";
    ::GetClassName(wnd.m_hWnd, name, sizeof(name));
    return name;
}
} // namespace

TEST(Static, CreationAndImages)
{
    CInFrame<CStatic> control;
    ASSERT_TRUE(control.Create("text", WS_VISIBLE | SS_BITMAP, kPlace, &control.frame, 5));
    EXPECT_EQ(0, ClassOf(control).CompareNoCase("Static"));
    EXPECT_EQ(5, control.GetDlgCtrlID());
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_SMALL));
    EXPECT_EQ(nullptr, control.SetBitmap(bitmap));
    EXPECT_EQ(static_cast<HBITMAP>(bitmap), control.GetBitmap());
    EXPECT_EQ(static_cast<HBITMAP>(bitmap), control.SetBitmap(nullptr));

    CInFrame<CStatic> icon;
    ASSERT_TRUE(icon.Create("", SS_ICON, kPlace, &icon.frame));
    const HICON application = theApp.LoadStandardIcon(IDI_APPLICATION);
    icon.SetIcon(application);
    EXPECT_EQ(application, icon.GetIcon());
}

TEST(Static, OwnerDraw)
{
    class CDrawnStatic : public CStatic
    {
    public:
        int drawn = 0;
        ~CDrawnStatic() override { DestroyWindow(); }
        void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    };
    CTestFrame frame;
    CDrawnStatic control;
    ASSERT_TRUE(control.Create("", WS_VISIBLE | SS_OWNERDRAW, kPlace, &frame, 1));
    control.RedrawWindow();
    EXPECT_EQ(1, control.drawn);
}

TEST(Button, StateAndStyle)
{
    CInFrame<CButton> control;
    ASSERT_TRUE(control.Create("text", WS_VISIBLE | BS_AUTOCHECKBOX, kPlace, &control.frame, 5));
    EXPECT_EQ(0, ClassOf(control).CompareNoCase("Button"));
    control.SetCheck(BST_CHECKED);
    EXPECT_EQ(BST_CHECKED, control.GetCheck());
    control.Click();
    EXPECT_EQ(BST_UNCHECKED, control.GetCheck());
    control.SetState(TRUE);
    EXPECT_TRUE(control.GetState() & BST_PUSHED);
    control.SetState(FALSE);
    EXPECT_FALSE(control.GetState() & BST_PUSHED);
    control.SetButtonStyle(BS_PUSHBUTTON);
    EXPECT_EQ(static_cast<UINT>(BS_PUSHBUTTON), control.GetButtonStyle() & BS_TYPEMASK);
}

TEST(Edit, SelectionAndLimits)
{
    CInFrame<CEdit> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE, kPlace, &control.frame, 5));
    control.SetWindowText("abcdef");
    control.SetSel(1, 3);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(1, 3)), control.GetSel());
    int start = 0;
    int end = 0;
    control.GetSel(start, end);
    EXPECT_EQ(1, start);
    EXPECT_EQ(3, end);
    control.ReplaceSel("X", TRUE);
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ("aXdef", text);
    EXPECT_TRUE(control.CanUndo());
    EXPECT_TRUE(control.Undo());
    control.SetSel(static_cast<DWORD>(MAKELONG(0, -1)));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 6)), control.GetSel());
    control.SetLimitText(7);
    EXPECT_EQ(7u, control.GetLimitText());
    control.SetReadOnly();
    EXPECT_TRUE(control.GetStyle() & ES_READONLY);
    control.SetModify();
    EXPECT_TRUE(control.GetModify());
    control.SetModify(FALSE);
    EXPECT_FALSE(control.GetModify());
}

TEST(Edit, Lines)
{
    CInFrame<CEdit> control;
    ASSERT_TRUE(control.Create(ES_MULTILINE, kPlace, &control.frame, 5));
    control.SetWindowText("one\r\nthree\r\n5");
    EXPECT_EQ(3, control.GetLineCount());
    EXPECT_EQ(5, control.LineIndex(1));
    EXPECT_EQ(5, control.LineLength(5));
    EXPECT_EQ(1, control.LineFromChar(6));
    char line[8] = "-------";
    EXPECT_EQ(5, control.GetLine(1, line, 7));
    EXPECT_EQ(0, strncmp("three--", line, 7)) << "no NUL is stored";
    EXPECT_EQ(3, control.GetLine(1, line, 3));
    EXPECT_EQ(0, strncmp("three", line, 5));
    char one[2] = {'-', '-'};
    EXPECT_EQ(1, control.GetLine(1, one, 1));
    EXPECT_EQ('t', one[0]);
    EXPECT_EQ('-', one[1]) << "nothing behind the buffer";
    EXPECT_EQ(0, control.GetLine(1, nullptr, 5));
    EXPECT_EQ(0, control.GetLine(1, one, 0));
    CRect rect(1, 2, 50, 60);
    control.SetRect(&rect);
    CRect got;
    control.GetRect(&got);
    EXPECT_EQ(2, got.top);
}

TEST(ListBox, Items)
{
    CInFrame<CListBox> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | LBS_NOTIFY, kPlace, &control.frame, 5));
    EXPECT_EQ(0, control.AddString("one"));
    EXPECT_EQ(1, control.AddString("three"));
    EXPECT_EQ(1, control.InsertString(1, "two 二"));
    EXPECT_EQ(3, control.GetCount());
    CString text;
    control.GetText(1, text);
    EXPECT_STREQ("two 二", text);
    EXPECT_EQ(6, control.GetTextLen(1));
    char buffer[16] = "";
    EXPECT_EQ(3, control.GetText(0, buffer));
    EXPECT_STREQ("one", buffer);
    control.GetText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(LB_ERR, control.GetTextLen(9));
    EXPECT_EQ(2, control.FindString(-1, "th"));
    EXPECT_EQ(LB_ERR, control.FindStringExact(-1, "th"));
    EXPECT_EQ(2, control.SelectString(-1, "thr"));
    EXPECT_EQ(2, control.GetCurSel());
    EXPECT_EQ(0, control.SetCurSel(0));
    EXPECT_EQ(LB_ERR, control.SetCurSel(-1));
    EXPECT_EQ(LB_ERR, control.GetCurSel());
    control.SetItemData(1, 77);
    EXPECT_EQ(77u, control.GetItemData(1));
    control.SetItemDataPtr(1, &control);
    EXPECT_EQ(&control, control.GetItemDataPtr(1));
    EXPECT_EQ(2, control.DeleteString(0));
    EXPECT_EQ(LB_ERR, control.DeleteString(9));
    control.ResetContent();
    EXPECT_EQ(0, control.GetCount());
}

TEST(ListBox, Geometry)
{
    CInFrame<CListBox> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE, kPlace, &control.frame, 5));
    for (int i = 0; i < 30; ++i)
    {
        control.AddString("item");
    }
    control.SetItemHeight(0, 20);
    EXPECT_EQ(20, control.GetItemHeight(0));
    control.SetTopIndex(5);
    EXPECT_EQ(5, control.GetTopIndex());
    CRect rect;
    EXPECT_NE(LB_ERR, control.GetItemRect(6, &rect));
    EXPECT_EQ(20, rect.top);
    BOOL outside = TRUE;
    EXPECT_EQ(6u, control.ItemFromPoint(CPoint(3, 25), outside));
    EXPECT_FALSE(outside);
}

TEST(ListBox, MultipleSelection)
{
    CInFrame<CListBox> control;
    ASSERT_TRUE(control.Create(LBS_MULTIPLESEL, kPlace, &control.frame, 5));
    control.AddString("a");
    control.AddString("b");
    control.SetSel(1);
    EXPECT_EQ(1, control.GetSelCount());
    EXPECT_GT(control.GetSel(1), 0);
    EXPECT_EQ(0, control.GetSel(0));
}

TEST(ComboBox, Items)
{
    CInFrame<CComboBox> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | CBS_DROPDOWNLIST, kPlace, &control.frame, 5));
    EXPECT_EQ(0, control.AddString("one"));
    EXPECT_EQ(1, control.InsertString(1, "二"));
    EXPECT_EQ(2, control.GetCount());
    CString text;
    control.GetLBText(1, text);
    EXPECT_STREQ("二", text);
    EXPECT_EQ(2, control.GetLBTextLen(1));
    char buffer[16] = "";
    control.GetLBText(0, buffer);
    EXPECT_STREQ("one", buffer);
    control.GetLBText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(1, control.SetCurSel(1));
    EXPECT_EQ(1, control.GetCurSel());
    EXPECT_EQ(0, control.SelectString(-1, "on"));
    EXPECT_EQ(1, control.FindStringExact(-1, "二"));
    EXPECT_EQ(0, control.FindString(-1, "o"));
    control.SetItemData(0, 9);
    EXPECT_EQ(9u, control.GetItemData(0));
    EXPECT_EQ(1, control.DeleteString(0));
    control.ResetContent();
    EXPECT_EQ(0, control.GetCount());
    EXPECT_EQ(CB_ERR, control.GetCurSel());
}

TEST(ComboBox, DroppedList)
{
    CInFrame<CComboBox> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | CBS_DROPDOWN, kPlace, &control.frame, 5));
    control.AddString("one");
    EXPECT_FALSE(control.GetDroppedState());
    control.ShowDropDown();
    EXPECT_TRUE(control.GetDroppedState());
    control.ShowDropDown(FALSE);
    EXPECT_FALSE(control.GetDroppedState());
    control.SetDroppedWidth(222);
    EXPECT_EQ(222, control.GetDroppedWidth());
    CRect rect;
    control.GetDroppedControlRect(&rect);
    EXPECT_EQ(222, rect.Width());
    control.SetWindowText("text");
    EXPECT_TRUE(control.SetEditSel(1, 3));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(1, 3)), control.GetEditSel());
    control.LimitText(5);
    EXPECT_EQ(5, control.GetWindow(GW_CHILD)->SendMessage(EM_GETLIMITTEXT));
}

TEST(ComboBox, ItemHeight)
{
    CInFrame<CComboBox> control;
    const DWORD style = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    ASSERT_TRUE(control.Create(style, kPlace, &control.frame, 5));
    control.AddString("one");
    control.SetItemHeight(0, 30);
    EXPECT_EQ(30, control.GetItemHeight(0));
    const int face = control.GetItemHeight(-1);
    control.SetItemHeight(-1, static_cast<UINT>(face) + 9);
    EXPECT_GT(control.GetItemHeight(-1), face);
}

TEST(ScrollBar, PositionAndRange)
{
    CInFrame<CScrollBar> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | SBS_VERT, kPlace, &control.frame, 5));
    control.SetScrollRange(0, 90);
    control.SetScrollPos(30);
    EXPECT_EQ(30, control.GetScrollPos());
    int low = -1;
    int high = -1;
    control.GetScrollRange(&low, &high);
    EXPECT_EQ(90, high);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(control.SetScrollInfo(&info));
    EXPECT_EQ(80, control.GetScrollLimit());
    SCROLLINFO read = {};
    EXPECT_TRUE(control.GetScrollInfo(&read));
    EXPECT_EQ(11u, read.nPage);
}

TEST(SpinButton, PositionAndRange)
{
    CInFrame<CSpinButtonCtrl> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | UDS_SETBUDDYINT, kPlace, &control.frame, 5));
    CEdit buddy;
    buddy.Create(WS_VISIBLE, kPlace, &control.frame, 6);
    control.SetBuddy(&buddy);
    EXPECT_EQ(&buddy, control.GetBuddy());
    control.SetRange(-5, 50);
    int low = 0;
    int high = 0;
    control.GetRange(low, high);
    EXPECT_EQ(-5, low);
    EXPECT_EQ(50, high);
    control.SetPos(7);
    EXPECT_EQ(7, control.GetPos());
    CString text;
    buddy.GetWindowText(text);
    EXPECT_STREQ("7", text);
    control.SetRange32(0, 100000);
    control.GetRange32(low, high);
    EXPECT_EQ(100000, high);
    control.SetPos32(70000);
    BOOL error = TRUE;
    EXPECT_EQ(70000, control.GetPos32(&error));
    buddy.DestroyWindow();
}

TEST(RichEdit, TextAndSelection)
{
    CInFrame<CRichEditCtrl> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | ES_MULTILINE, kPlace, &control.frame, 5));
    EXPECT_STREQ("RichEdit20A", ClassOf(control));
    control.SetWindowText("abc");
    EXPECT_EQ(3, control.GetTextLength());
    control.SetWindowText("abc 中文");
    CString text;
    control.GetWindowText(text);
    EXPECT_STREQ("abc 中文", text);
    control.SetSel(1, 3);
    long start = 0;
    long end = 0;
    control.GetSel(start, end);
    EXPECT_EQ(1, start);
    EXPECT_EQ(3, end);
    EXPECT_STREQ("bc", control.GetSelText());
    control.SetSel(4, 6);
    EXPECT_STREQ("中文", control.GetSelText()) << "two bytes a character";
    control.ReplaceSel("x");
    control.GetWindowText(text);
    EXPECT_STREQ("abc x", text);
    EXPECT_EQ(2, control.GetTextRange(1, 3, text));
    EXPECT_STREQ("bc", text);
    EXPECT_EQ(5, control.GetTextRange(0, -1, text));
    CHARRANGE range = {0, 1};
    control.SetSel(range);
    control.GetSel(range);
    EXPECT_EQ(1, range.cpMax);
    control.LimitText(100);
    EXPECT_EQ(100, control.GetLimitText());
    control.SetModify(FALSE);
    EXPECT_FALSE(control.GetModify());
    control.SetReadOnly(TRUE);
    EXPECT_TRUE(control.GetStyle() & ES_READONLY);
}

TEST(RichEdit, LookAndEvents)
{
    CInFrame<CRichEditCtrl> control;
    ASSERT_TRUE(control.Create(WS_VISIBLE | ES_MULTILINE, kPlace, &control.frame, 5));
    control.SetBackgroundColor(FALSE, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), control.SetBackgroundColor(FALSE, RGB(4, 5, 6)));
    CHARFORMAT format = {};
    control.GetDefaultCharFormat(format);
    format.dwMask = CFM_COLOR;
    format.dwEffects = 0;
    format.crTextColor = RGB(7, 8, 9);
    EXPECT_TRUE(control.SetDefaultCharFormat(format));
    CHARFORMAT2 read = {};
    EXPECT_TRUE(control.GetDefaultCharFormat(read) & CFM_COLOR);
    EXPECT_EQ(RGB(7, 8, 9), read.crTextColor);
    control.SetEventMask(ENM_CHANGE);
    EXPECT_EQ(ENM_CHANGE, control.GetEventMask());
    PARAFORMAT paragraph = {};
    paragraph.dwMask = PFM_ALIGNMENT;
    paragraph.wAlignment = PFA_CENTER;
    EXPECT_TRUE(control.SetParaFormat(paragraph));
    PARAFORMAT readParagraph = {};
    control.GetParaFormat(readParagraph);
    EXPECT_EQ(PFA_CENTER, readParagraph.wAlignment);
    CRect rect(3, 4, 60, 50);
    control.SetRect(&rect);
    CRect got;
    control.GetRect(&got);
    EXPECT_EQ(4, got.top);
    control.SetWindowText("one\r\ntwo");
    EXPECT_EQ(2, control.GetLineCount());
    EXPECT_EQ(1, control.LineFromChar(control.LineIndex(1)));
    EXPECT_EQ(3, control.LineLength(0));
    EXPECT_EQ(0, control.GetFirstVisibleLine());
    EXPECT_GT(control.GetCharPos(2).x, control.GetCharPos(0).x);
    EXPECT_EQ(0, control.CharFromPos(control.GetCharPos(0)));
    FINDTEXTEX find = {};
    find.chrg.cpMax = -1;
    char two[] = "two";
    find.lpstrText = two;
    EXPECT_EQ(4, control.FindText(FR_DOWN, &find));
}

TEST(RichEdit, StandsInDialogs)
{
    EXPECT_TRUE(AfxInitRichEdit());
    ASSERT_TRUE(AfxInitRichEdit2());
    class CRichDlg : public CDialog
    {
    public:
        ~CRichDlg() override { DestroyWindow(); }
    };
    CRichDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_RICH));
    EXPECT_STREQ("RichEdit20A", ClassOf(*dialog.GetDlgItem(IDC_RICH)));
}
