// What assistive software hears of the drawn controls, asked through the system's own interface.
#include "skin/Accessible.h"
#include "skin/BlackButton.h"
#include "skin/MyCheckBox.h"
#include "skin/MyComboBox.h"
#include "skin/MyListBox.h"
#include "skin/MyTabCtrl.h"
#include "skin/NumEdit.h"
#include "skin/OwerDrawStatic.h"
#include "skin/ScriptStatic.h"
#include "skin/ToolTip.h"
#include "tests/skin/KitWindow.h"
#include "tests/skin/TestDlg.h"

#include <commctrl.h>
#include <objbase.h>
#include <oleacc.h>

#include <memory>

namespace
{

constexpr int kStripId = 6000;
constexpr int kStripHeight = 40;

VARIANT Child(long number)
{
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = number;
    return child;
}

/// A text that came from the other side; "<none>" for none.
std::string Take(BSTR text)
{
    if (!text)
        return "<none>";
    char narrow[512] = "";
    WideCharToMultiByte(936, 0, text, -1, narrow, sizeof(narrow), nullptr, nullptr);
    SysFreeString(text);
    return narrow;
}

/// The number of a child, or -1 for none.
long NumberOf(const VARIANT& child)
{
    return child.vt == VT_I4 ? child.lVal : -1;
}

/// Reads a window as a screen reader does.
class CReader
{
public:
    explicit CReader(HWND window)
    {
        EXPECT_EQ(S_OK, AccessibleObjectFromWindow(window, OBJID_CLIENT, __uuidof(IAccessible),
                                                   reinterpret_cast<void**>(&object)));
    }
    CReader(const CReader&) = delete;
    ~CReader()
    {
        if (object)
            object->Release();
    }

    IAccessible* operator->() const { return object; }

    std::string Name(long child = 0) const
    {
        BSTR text = nullptr;
        object->get_accName(Child(child), &text);
        return Take(text);
    }
    std::string Value(long child = 0) const
    {
        BSTR text = nullptr;
        object->get_accValue(Child(child), &text);
        return Take(text);
    }
    std::string Action(long child = 0) const
    {
        BSTR text = nullptr;
        object->get_accDefaultAction(Child(child), &text);
        return Take(text);
    }
    long Role(long child = 0) const
    {
        VARIANT role = {};
        object->get_accRole(Child(child), &role);
        return NumberOf(role);
    }
    long State(long child = 0) const
    {
        VARIANT state = {};
        object->get_accState(Child(child), &state);
        return NumberOf(state);
    }
    long Count() const
    {
        long count = -1;
        object->get_accChildCount(&count);
        return count;
    }
    long Selection() const
    {
        VARIANT selected = {};
        object->get_accSelection(&selected);
        return NumberOf(selected);
    }
    long Focus() const
    {
        VARIANT focus = {};
        object->get_accFocus(&focus);
        return NumberOf(focus);
    }
    long Hit(long x, long y) const
    {
        VARIANT child = {};
        object->accHitTest(x, y, &child);
        return NumberOf(child);
    }
    long Navigate(long direction, long from) const
    {
        VARIANT to = {};
        object->accNavigate(direction, Child(from), &to);
        return NumberOf(to);
    }
    CRect Place(long child = 0) const
    {
        long left = 0;
        long top = 0;
        long width = 0;
        long height = 0;
        object->accLocation(&left, &top, &width, &height, Child(child));
        return CRect(left, top, left + width, top + height);
    }

private:
    IAccessible* object = nullptr;
};

/// What the system tells all who listen, as pairs of event and child.
std::vector<std::pair<DWORD, LONG>> heard;
HWND listenedTo;

void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
{
    if (window == listenedTo && object == OBJID_CLIENT)
        heard.emplace_back(event, child);
}

class CListener
{
public:
    explicit CListener(HWND window)
        : hook(SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_SELECTION,
                               GetModuleHandleA(nullptr), Hear, GetCurrentProcessId(), 0,
                               WINEVENT_INCONTEXT))
    {
        EXPECT_NE(nullptr, hook);
        heard.clear();
        listenedTo = window;
    }
    CListener(const CListener&) = delete;
    ~CListener() { UnhookWinEvent(hook); }

    bool Heard(DWORD event, LONG child) const
    {
        for (const auto& [heardEvent, heardChild] : heard)
            if (heardEvent == event && heardChild == child)
                return true;
        return false;
    }

private:
    HWINEVENTHOOK hook;
};

class Accessible : public testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr))); }
    static void TearDownTestSuite() { CoUninitialize(); }
};

class AccessibleStrip : public Accessible
{
protected:
    AccessibleStrip()
    {
        strip->Create(kStripId, &parent);
        strip->MoveWindow(10, 20, 200, kStripHeight);
        strip->AddItem("常规", 100, 0);
        strip->AddItem("自动追价", 60, 0);
        strip->AddItem("自动拆单", 60, 0);
        strip->AddItem("键盘下单", 60, 0);
        strip->SetCurSel(0);
    }

    CPoint OnScreen(int x, int y) const
    {
        CPoint point(x, y);
        ::ClientToScreen(*strip, &point);
        return point;
    }

    KitWindow parent;
    std::unique_ptr<CMyTabCtrl_MyCtrl> strip = std::make_unique<CMyTabCtrl_MyCtrl>();
};

void ExpectNothingAnswers(const CReader& reader)
{
    BSTR text = nullptr;
    VARIANT value = {};
    long number = 0;
    IDispatch* dispatch = nullptr;
    EXPECT_TRUE(FAILED(reader->get_accName(Child(0), &text)));
    EXPECT_TRUE(FAILED(reader->get_accName(Child(1), &text)));
    EXPECT_TRUE(FAILED(reader->get_accValue(Child(0), &text)));
    EXPECT_TRUE(FAILED(reader->get_accDescription(Child(1), &text)));
    EXPECT_TRUE(FAILED(reader->get_accDefaultAction(Child(1), &text)));
    EXPECT_TRUE(FAILED(reader->get_accRole(Child(0), &value)));
    EXPECT_TRUE(FAILED(reader->get_accState(Child(1), &value)));
    EXPECT_TRUE(FAILED(reader->get_accFocus(&value)));
    EXPECT_TRUE(FAILED(reader->get_accSelection(&value)));
    EXPECT_TRUE(FAILED(reader->get_accChildCount(&number)));
    EXPECT_TRUE(FAILED(reader->get_accChild(Child(1), &dispatch)));
    EXPECT_TRUE(FAILED(reader->get_accParent(&dispatch)));
    EXPECT_TRUE(FAILED(reader->accHitTest(0, 0, &value)));
    EXPECT_TRUE(FAILED(reader->accNavigate(NAVDIR_FIRSTCHILD, Child(0), &value)));
    EXPECT_TRUE(FAILED(reader->accLocation(&number, &number, &number, &number, Child(1))));
    EXPECT_TRUE(FAILED(reader->accSelect(SELFLAG_TAKESELECTION, Child(1))));
    EXPECT_TRUE(FAILED(reader->accDoDefaultAction(Child(1))));
}

} // namespace

TEST_F(AccessibleStrip, IsAListOfTabs)
{
    const CReader reader(*strip);
    EXPECT_EQ(ROLE_SYSTEM_PAGETABLIST, reader.Role());
    EXPECT_EQ("<none>", reader.Name());
    ASSERT_EQ(4, reader.Count());
    for (long tab = 1; tab <= 4; ++tab)
        EXPECT_EQ(ROLE_SYSTEM_PAGETAB, reader.Role(tab));
    EXPECT_EQ("常规", reader.Name(1));
    EXPECT_EQ("键盘下单", reader.Name(4));
    EXPECT_EQ("切换", reader.Action(2));
    EXPECT_EQ("<none>", reader.Value(2));
}

TEST_F(AccessibleStrip, TellsWhichTabIsSelectedAndWhetherItHasTheFocus)
{
    const CReader reader(*strip);
    strip->SetCurSel(1);
    ::SetFocus(parent);
    EXPECT_EQ(2, reader.Selection());
    EXPECT_EQ(-1, reader.Focus());
    EXPECT_EQ(STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE, reader.State(1));
    EXPECT_EQ(STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTED,
              reader.State(2));
    ::SetFocus(*strip);
    EXPECT_EQ(2, reader.Focus());
    EXPECT_EQ(STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTED |
                  STATE_SYSTEM_FOCUSED,
              reader.State(2));
    // The fourth tab stands right of the strip's end.
    EXPECT_EQ(STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_OFFSCREEN,
              reader.State(4));
    strip->EnableWindow(FALSE);
    EXPECT_TRUE(reader.State(1) & STATE_SYSTEM_UNAVAILABLE);
    strip->ShowWindow(SW_HIDE);
    EXPECT_TRUE(reader.State(1) & STATE_SYSTEM_INVISIBLE);
    EXPECT_TRUE(reader.State() & STATE_SYSTEM_INVISIBLE);
}

TEST_F(AccessibleStrip, TellsWhereTheTabsAre)
{
    const CReader reader(*strip);
    CRect place;
    strip->GetWindowRect(&place);
    EXPECT_EQ(place, reader.Place());
    EXPECT_EQ(CRect(place.left + 100, place.top, place.left + 160, place.bottom), reader.Place(2));

    const CPoint second = OnScreen(120, 10);
    EXPECT_EQ(2, reader.Hit(second.x, second.y));
    const CPoint between = OnScreen(100, 10);
    EXPECT_EQ(0, reader.Hit(between.x, between.y));
    const CPoint below = OnScreen(50, kStripHeight);
    EXPECT_EQ(-1, reader.Hit(below.x, below.y));
}

TEST_F(AccessibleStrip, LeadsFromTabToTab)
{
    const CReader reader(*strip);
    EXPECT_EQ(1, reader.Navigate(NAVDIR_FIRSTCHILD, 0));
    EXPECT_EQ(4, reader.Navigate(NAVDIR_LASTCHILD, 0));
    EXPECT_EQ(3, reader.Navigate(NAVDIR_NEXT, 2));
    EXPECT_EQ(3, reader.Navigate(NAVDIR_RIGHT, 2));
    EXPECT_EQ(1, reader.Navigate(NAVDIR_PREVIOUS, 2));
    EXPECT_EQ(1, reader.Navigate(NAVDIR_LEFT, 2));
    EXPECT_EQ(-1, reader.Navigate(NAVDIR_NEXT, 4));
    EXPECT_EQ(-1, reader.Navigate(NAVDIR_PREVIOUS, 1));
    EXPECT_EQ(-1, reader.Navigate(NAVDIR_DOWN, 2));
    EXPECT_EQ(-1, reader.Navigate(NAVDIR_FIRSTCHILD, 2));
}

TEST_F(AccessibleStrip, ATabCanBePressedAndTheParentHasItsSay)
{
    const CReader reader(*strip);
    EXPECT_EQ(S_OK, reader->accDoDefaultAction(Child(3)));
    EXPECT_EQ(2, strip->GetCurSel());
    EXPECT_EQ(1, parent.Count(TCN_SELCHANGE));
    EXPECT_EQ(S_OK, reader->accSelect(SELFLAG_TAKESELECTION, Child(2)));
    EXPECT_EQ(1, strip->GetCurSel());
    EXPECT_EQ(2, parent.Count(TCN_SELCHANGE));
    EXPECT_EQ(S_OK, reader->accSelect(SELFLAG_TAKEFOCUS, Child(0)));
    EXPECT_EQ(static_cast<HWND>(*strip), GetFocus());

    parent.onNotice = [&](UINT)
    {
        strip->SetCurSel(0);
    };
    EXPECT_EQ(S_OK, reader->accDoDefaultAction(Child(4)));
    EXPECT_EQ(1, reader.Selection());
}

TEST_F(AccessibleStrip, TellsOfASelectionAndOfTheFocus)
{
    const CListener listener(*strip);
    strip->SetCurSel(1);
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_SELECTION, 2));
    EXPECT_FALSE(listener.Heard(EVENT_OBJECT_FOCUS, 2));
    ::SetFocus(*strip);
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_FOCUS, 2));
    strip->SetCurSel(2);
    EXPECT_TRUE(listener.Heard(EVENT_OBJECT_FOCUS, 3));
}

TEST_F(AccessibleStrip, RefusesWhatIsNotThere)
{
    const CReader reader(*strip);
    BSTR text = nullptr;
    VARIANT value = {};
    for (const long child : {-1l, 5l, 1000000l})
    {
        EXPECT_EQ(E_INVALIDARG, reader->get_accName(Child(child), &text));
        EXPECT_EQ(E_INVALIDARG, reader->get_accState(Child(child), &value));
        EXPECT_EQ(E_INVALIDARG, reader->accDoDefaultAction(Child(child)));
        EXPECT_EQ(E_INVALIDARG, reader->accSelect(SELFLAG_TAKESELECTION, Child(child)));
    }
    VARIANT empty = {};
    EXPECT_EQ(E_INVALIDARG, reader->get_accName(empty, &text));
    EXPECT_EQ(E_INVALIDARG, reader->get_accName(Child(1), nullptr));
    EXPECT_EQ(E_INVALIDARG, reader->get_accState(Child(1), nullptr));
    EXPECT_EQ(E_INVALIDARG, reader->get_accChildCount(nullptr));
    EXPECT_EQ(E_INVALIDARG, reader->accHitTest(0, 0, nullptr));
    EXPECT_EQ(E_INVALIDARG, reader->accSelect(0, Child(1)));
    EXPECT_EQ(E_INVALIDARG, reader->accLocation(nullptr, nullptr, nullptr, nullptr, Child(1)));
    EXPECT_EQ(0, strip->GetCurSel());
}

TEST_F(AccessibleStrip, IsItselfToCom)
{
    const CReader reader(*strip);
    IUnknown* unknown = nullptr;
    EXPECT_EQ(S_OK, reader->QueryInterface(__uuidof(IUnknown), reinterpret_cast<void**>(&unknown)));
    ASSERT_NE(nullptr, unknown);
    unknown->Release();
    EXPECT_EQ(E_NOINTERFACE,
              reader->QueryInterface(__uuidof(IStream), reinterpret_cast<void**>(&unknown)));
    EXPECT_EQ(nullptr, unknown);
    IDispatch* dispatch = nullptr;
    EXPECT_EQ(S_OK, reader->get_accParent(&dispatch));
    ASSERT_NE(nullptr, dispatch);
    dispatch->Release();
}

TEST_F(AccessibleStrip, WhoStillAsksAfterTheWindowsEndGetsAnError)
{
    const CReader reader(*strip);
    EXPECT_EQ(4, reader.Count());
    strip->DestroyWindow();
    ExpectNothingAnswers(reader);
    EXPECT_TRUE(strip->Create(kStripId, &parent));
    ExpectNothingAnswers(reader);
    EXPECT_EQ(4, CReader(*strip).Count());
}

TEST_F(AccessibleStrip, WhoStillAsksAfterTheObjectsEndGetsAnError)
{
    const CReader reader(*strip);
    EXPECT_EQ(4, reader.Count());
    strip.reset();
    ExpectNothingAnswers(reader);
}

TEST_F(AccessibleStrip, AReaderKeepsTheObjectAndNothingElse)
{
    ULONG before;
    {
        const CReader first(*strip);
        first->AddRef();
        before = first->Release();
    }
    {
        const CReader second(*strip);
        for (int i = 0; i < 100; ++i)
        {
            const CReader another(*strip);
            EXPECT_EQ(4, another.Count());
        }
        second->AddRef();
        EXPECT_EQ(before, second->Release());
    }
}

TEST_F(AccessibleStrip, OtherObjectsAreTheSystems)
{
    EXPECT_EQ(0, strip->SendMessage(WM_GETOBJECT, 0, OBJID_WINDOW));
    EXPECT_EQ(0, strip->SendMessage(WM_GETOBJECT, 0, OBJID_VSCROLL));
    EXPECT_EQ(0, strip->SendMessage(WM_GETOBJECT, 0, 0));
}

TEST_F(Accessible, ATipIsReadAsOneLine)
{
    KitWindow parent;
    CToolTip tip;
    ASSERT_TRUE(tip.Create(&parent));
    POINT point = {100, 100};
    tip.ShowAt("第一行\r\n第二行\r\n", &point, 0);
    const CReader reader(tip);
    EXPECT_EQ(ROLE_SYSTEM_TOOLTIP, reader.Role());
    EXPECT_EQ("第一行 第二行", reader.Name());
    EXPECT_EQ(0, reader.Count());
    EXPECT_FALSE(reader.State() & STATE_SYSTEM_INVISIBLE);
    tip.Hide();
    EXPECT_TRUE(reader.State() & STATE_SYSTEM_INVISIBLE);
}

// Drawn controls that take over a stock window are read by the system's own proxy of the window
// class, which asks the window by its messages. Wine's proxies know edits only and call all else a
// client area, with the window's text for a name. So each drawn control is held against a stock one
// beside it, which says the same on either system, and the messages that the proxies of Windows send
// are sent here as well.

namespace
{

enum Id : WORD
{
    kLabel = 200,
    kCheck = 300,
    kCombo,
    kList,
    kEdit,
    kDark,
    kNumber,
    kStock = 100 ///< this much above a drawn control stands its stock twin
};

const DWORD kPlainList = kShown | LBS_NOTIFY | LBS_HASSTRINGS;
const DWORD kPlainCombo = kShown | WS_VSCROLL | CBS_DROPDOWNLIST;

/// Each drawn control and its twin, which the dialog leaves as it is.
class CTwinsDlg : public CTestDlg
{
public:
    CTwinsDlg()
        : CTestDlg({{"Static", "标签", WS_CHILD | WS_VISIBLE, kLabel, 5, 0, 50, 10},
                    {"Button", "选项", kShown | BS_AUTOCHECKBOX, kCheck, 5, 10, 50, 10},
                    {"ComboBox", "", kComboStyle, kCombo, 5, 25, 50, 80},
                    {"ListBox", "", kListStyle, kList, 5, 45, 50, 40},
                    {"RichEdit20A", "12", kShown, kEdit, 5, 90, 50, 10},
                    {"Button", "确定", kShown | BS_DEFPUSHBUTTON, IDOK, 5, 105, 50, 12},
                    {"Button", "暗", kShown, kDark, 5, 120, 50, 12},
                    {"Edit", "3", kShown, kNumber, 5, 135, 50, 12}})
    {
        MakeTwin("Button", "选项", kShown | BS_AUTOCHECKBOX, kCheck);
        MakeTwin("ComboBox", "", kPlainCombo, kCombo);
        MakeTwin("ListBox", "", kPlainList, kList);
        MakeTwin("RichEdit20A", "12", kShown, kEdit);
        MakeTwin("Button", "确定", kShown | BS_DEFPUSHBUTTON, IDOK);
        MakeTwin("Button", "暗", kShown, kDark);
        dark.SubclassWindow(Item(kDark));
        number.SubclassWindow(Item(kNumber));
        // One of two twins would have it.
        ::SetFocus(nullptr);
        for (const char* text : {"对手价", "最新价"})
        {
            Drawn<CMyComboBox_MyCtrl>(kCombo).AddString(text);
            Drawn<CMyListBox_MyCtrl>(kList).AddItem(text);
            ::SendMessageA(Twin(kCombo), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
            ::SendMessageA(Twin(kList), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        }
    }

    HWND Twin(int id) const { return Item(id + kStock); }

    CBlackButton dark;
    CNumEdit number;

private:
    void MakeTwin(const char* className, const char* text, DWORD style, int id)
    {
        CreateWindowExA(0, className, text, style, 120, id % 20 * 30, 90, 20, m_hWnd,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id + kStock)), nullptr,
                        nullptr);
    }
};

void ExpectSame(HWND drawn, HWND stock)
{
    const CReader one(drawn);
    const CReader other(stock);
    EXPECT_EQ(other.Role(), one.Role());
    EXPECT_EQ(other.Name(), one.Name());
    EXPECT_EQ(other.Value(), one.Value());
    EXPECT_EQ(other.State(), one.State());
    EXPECT_EQ(other.Action(), one.Action());
    EXPECT_EQ(other.Count(), one.Count());
}

/// Both sides answer a message alike.
void ExpectSameAnswer(HWND drawn, HWND stock, UINT message, WPARAM wParam = 0)
{
    char one[256] = "";
    char other[256] = "";
    EXPECT_EQ(SendMessageA(stock, message, wParam, reinterpret_cast<LPARAM>(other)),
              SendMessageA(drawn, message, wParam, reinterpret_cast<LPARAM>(one)))
        << std::hex << message;
    EXPECT_STREQ(other, one) << std::hex << message;
}

} // namespace

TEST_F(Accessible, ADrawnCheckBoxSaysWhatAStockOneSays)
{
    CTwinsDlg dialog;
    const HWND drawn = dialog.Item(kCheck);
    const HWND stock = dialog.Twin(kCheck);
    ExpectSame(drawn, stock);
    EXPECT_EQ("选项", CReader(drawn).Name());
    for (const int check : {BST_CHECKED, BST_UNCHECKED})
    {
        dialog.Drawn<CMyCheckBox_MyCtrl>(kCheck).SetCheck(check);
        SendMessageA(stock, BM_SETCHECK, check, 0);
        ExpectSame(drawn, stock);
        EXPECT_EQ(check, SendMessageA(drawn, BM_GETCHECK, 0, 0));
        ExpectSameAnswer(drawn, stock, BM_GETSTATE);
    }
    ExpectSameAnswer(drawn, stock, WM_GETDLGCODE);
    EXPECT_EQ(BS_AUTOCHECKBOX, GetWindowLongA(drawn, GWL_STYLE) & BS_TYPEMASK);
    ::EnableWindow(drawn, FALSE);
    EXPECT_TRUE(CReader(drawn).State() & STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(Accessible, ADrawnComboBoxSaysWhatAStockOneSays)
{
    CTwinsDlg dialog;
    const HWND drawn = dialog.Item(kCombo);
    const HWND stock = dialog.Twin(kCombo);
    ExpectSame(drawn, stock);
    for (const int row : {1, 0})
    {
        dialog.Drawn<CMyComboBox_MyCtrl>(kCombo).SetCurSel(row);
        SendMessageA(stock, CB_SETCURSEL, row, 0);
        ExpectSame(drawn, stock);
        ExpectSameAnswer(drawn, stock, CB_GETCURSEL);
        ExpectSameAnswer(drawn, stock, CB_GETLBTEXT, row);
        ExpectSameAnswer(drawn, stock, WM_GETTEXT, 256);
    }
    ExpectSameAnswer(drawn, stock, CB_GETCOUNT);
    ExpectSameAnswer(drawn, stock, CB_GETDROPPEDSTATE);
    ExpectSameAnswer(drawn, stock, WM_GETDLGCODE);
}

TEST_F(Accessible, ADrawnListSaysWhatAStockOneSays)
{
    CTwinsDlg dialog;
    const HWND drawn = dialog.Item(kList);
    const HWND stock = dialog.Twin(kList);
    ExpectSame(drawn, stock);
    SendMessageA(drawn, LB_SETCURSEL, 1, 0);
    SendMessageA(stock, LB_SETCURSEL, 1, 0);
    ExpectSame(drawn, stock);
    for (const int row : {0, 1, 2})
    {
        ExpectSameAnswer(drawn, stock, LB_GETTEXTLEN, row);
        ExpectSameAnswer(drawn, stock, LB_GETTEXT, row);
        ExpectSameAnswer(drawn, stock, LB_GETSEL, row);
    }
    ExpectSameAnswer(drawn, stock, LB_GETCOUNT);
    ExpectSameAnswer(drawn, stock, LB_GETCURSEL);
    ExpectSameAnswer(drawn, stock, LB_GETCARETINDEX);
    ExpectSameAnswer(drawn, stock, WM_GETDLGCODE);
}

TEST_F(Accessible, ADrawnFieldSaysWhatAStockOneSays)
{
    CTwinsDlg dialog;
    const HWND drawn = dialog.Item(kEdit);
    const HWND stock = dialog.Twin(kEdit);
    ExpectSame(drawn, stock);
    ExpectSameAnswer(drawn, stock, WM_GETTEXT, 256);
    ::SetWindowTextA(drawn, "34");
    ::SetWindowTextA(stock, "34");
    ExpectSame(drawn, stock);
    EXPECT_EQ("3", CReader(dialog.Item(kNumber)).Value());
    EXPECT_EQ(ROLE_SYSTEM_TEXT, CReader(dialog.Item(kNumber)).Role());
}

TEST_F(Accessible, DrawnButtonsSayWhatStockOnesSay)
{
    CTwinsDlg dialog;
    for (const int id : {static_cast<int>(IDOK), static_cast<int>(kDark)})
    {
        ExpectSame(dialog.Item(id), dialog.Twin(id));
        ExpectSameAnswer(dialog.Item(id), dialog.Twin(id), BM_GETSTATE);
        ::EnableWindow(dialog.Item(id), FALSE);
        EXPECT_TRUE(CReader(dialog.Item(id)).State() & STATE_SYSTEM_UNAVAILABLE);
        // To the dialog both are push buttons.
        EXPECT_TRUE(SendMessageA(dialog.Item(id), WM_GETDLGCODE, 0, 0) & DLGC_BUTTON);
    }
}

TEST_F(Accessible, DrawnLabelsSayTheirText)
{
    KitWindow parent;
    COwerDrawStatic link(RGB(0, 0, 0), RGB(255, 255, 255), DT_SINGLELINE);
    ASSERT_TRUE(link.Create("说明", WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 20), &parent));
    CScriptStatic script;
    ASSERT_TRUE(script.Create("脚本", WS_CHILD | WS_VISIBLE, CRect(0, 30, 80, 50), &parent));
    CStatic stock;
    ASSERT_TRUE(stock.Create("说明", WS_CHILD | WS_VISIBLE, CRect(0, 60, 80, 80), &parent));
    ExpectSame(link, stock);
    EXPECT_EQ("说明", CReader(link).Name());
    EXPECT_EQ("脚本", CReader(script).Name());
    EXPECT_EQ(CReader(stock).Role(), CReader(script).Role());
    link.SetWindowText("新的说明");
    EXPECT_EQ("新的说明", CReader(link).Name());
}
