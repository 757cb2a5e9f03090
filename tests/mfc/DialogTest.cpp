// Modeless dialogs, their initial data, exchange of data, keyboard.

#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <afxdialogex.h>
#include <gtest/gtest.h>

namespace
{
class CModeless : public CDialog
{
public:
    ~CModeless() override { DestroyWindow(); }

    int inits = 0;
    int oks = 0;
    int cancels = 0;
    int itemsAtInit = -1;
    int initialUpdates = 0;
    BOOL focusByWindows = TRUE;

    BOOL OnInitDialog() override
    {
        ++inits;
        CDialog::OnInitDialog();
        if (GetDlgItem(IDC_COMBO))
        {
            itemsAtInit = static_cast<int>(SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT));
        }
        return focusByWindows;
    }
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }
};

/// Posts a key to the window with the focus, as the keyboard would.
void Press(UINT key)
{
    ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 1);
    PumpPending();
}

int FocusedId()
{
    return ::GetDlgCtrlID(::GetFocus());
}
} // namespace

TEST(Dialog, ModelessByNumberNameAndMemory)
{
    CModeless byNumber;
    ASSERT_TRUE(byNumber.Create(IDD_PLAIN));
    EXPECT_EQ(1, byNumber.inits);
    EXPECT_EQ(&byNumber, CWnd::FromHandlePermanent(byNumber.m_hWnd));
    EXPECT_FALSE(byNumber.IsWindowVisible()) << "its template does not say so";
    CModeless byName;
    char name[] = "named";
    ASSERT_TRUE(byName.Create(name));

    const HRSRC resource = ::FindResource(nullptr, MAKEINTRESOURCE(IDD_PLAIN), RT_DIALOG);
    CModeless fromMemory;
    ASSERT_TRUE(fromMemory.CreateIndirect(
        static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(nullptr, resource)))));
    EXPECT_EQ(1, fromMemory.inits);
}

TEST(Dialog, MissingTemplateIsToldByTheResult)
{
    CModeless dialog;
    EXPECT_FALSE(dialog.Create(9999));
    EXPECT_FALSE(dialog.CreateIndirect(nullptr));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    CTestFrame frame;
    const HWND stranger =
        ::CreateWindow("BUTTON", "", WS_CHILD, 0, 0, 1, 1, frame, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(stranger));
}

TEST(Dialog, ParentIsTheGivenOneOrTheMainWindow)
{
    CTestFrame frame;
    CModeless child;
    ASSERT_TRUE(child.Create(IDD_CHILD, &frame));
    EXPECT_EQ(&frame, child.GetParent());

    CTestFrame mainWnd;
    theApp.m_pMainWnd = &mainWnd;
    CModeless popup;
    ASSERT_TRUE(popup.Create(IDD_PLAIN));
    EXPECT_EQ(mainWnd.m_hWnd, ::GetWindow(popup, GW_OWNER));
    theApp.m_pMainWnd = nullptr;
}

TEST(Dialog, CanBeMadeAnew)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN));
    EXPECT_FALSE(dialog.Create(IDD_PLAIN)) << "it has a window";
    dialog.DestroyWindow();
    EXPECT_TRUE(dialog.Create(IDD_ITEMS));
    EXPECT_EQ(2, dialog.inits);
}

TEST(Dialog, InitialDataIsThereInOnInitDialog)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_ITEMS));
    EXPECT_EQ(3, dialog.itemsAtInit);
    CComboBox combo;
    combo.SubclassDlgItem(IDC_COMBO, &dialog);
    CString text;
    combo.GetLBText(0, text);
    EXPECT_STREQ("first", text);
    combo.GetLBText(2, text);
    EXPECT_STREQ("third", text);
    CListBox list;
    list.SubclassDlgItem(IDC_LIST, &dialog);
    ASSERT_EQ(3, list.GetCount());
    list.GetText(1, text);
    EXPECT_STREQ("two", text);
}

TEST(Dialog, InitialDataThatIsCutEndsThere)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_BROKEN_ITEMS));
    EXPECT_EQ(1, dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT));
}

TEST(Dialog, InitialDataOfAnySizeIsReadWithinItsBounds)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_BROKEN_ITEMS));
    const BYTE data[] = {IDC_LIST & 0xFF, IDC_LIST >> 8, 0x01, 0x04, 3, 0, 0, 0, 'x', 'y', 'z'};
    for (DWORD size = 0; size < sizeof(data); ++size)
    {
        // A block of exactly this size, so that a tool that watches the heap would see more.
        const std::vector<BYTE> part(data, data + size);
        EXPECT_TRUE(dialog.ExecuteDlgInit(part.data(), size));
        EXPECT_EQ(1, dialog.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT)) << size;
    }
    EXPECT_TRUE(dialog.ExecuteDlgInit(data, sizeof(data)));
    char text[8] = "";
    dialog.SendDlgItemMessage(IDC_LIST, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ("xyz", text) << "the text needs no NUL";
    const BYTE missing[] = {0x01, 0x7F, 0x01, 0x04, 2, 0, 0, 0, 'x', 0, 0, 0};
    EXPECT_TRUE(dialog.ExecuteDlgInit(missing, sizeof(missing)))
        << "the item of a control that isn't there goes nowhere";
    EXPECT_TRUE(dialog.ExecuteDlgInit(nullptr, 0));
}

TEST(Dialog, IsCentredOnlyFromTheOrigin)
{
    CTestFrame frame;
    frame.MoveWindow(200, 200, 600, 500);
    CModeless centred;
    ASSERT_TRUE(centred.Create(IDD_PLAIN, &frame));
    CRect rect;
    centred.GetWindowRect(&rect);
    EXPECT_NEAR(500, rect.CenterPoint().x, 1);
    EXPECT_NEAR(450, rect.CenterPoint().y, 1);

    CModeless placed;
    ASSERT_TRUE(placed.Create(IDD_ITEMS, &frame));
    placed.GetWindowRect(&rect);
    EXPECT_LT(rect.left, 300);
    CModeless child;
    ASSERT_TRUE(child.Create(IDD_CHILD, &frame));
    child.GetWindowRect(&rect);
    frame.ScreenToClient(&rect);
    EXPECT_TRUE(rect.TopLeft() == CPoint(0, 0));
}

TEST(DialogKeys, TabAndShiftTabMove)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_KEYS));
    dialog.ShowWindow(SW_SHOW);
    dialog.GetDlgItem(IDC_FIRST)->SetFocus();
    Press(VK_TAB);
    EXPECT_EQ(IDC_SECOND, FocusedId());
    Press(VK_TAB);
    EXPECT_EQ(IDC_THIRD, FocusedId());
    dialog.NextDlgCtrl();
    EXPECT_EQ(IDOK, FocusedId());
    dialog.PrevDlgCtrl();
    EXPECT_EQ(IDC_THIRD, FocusedId());
    dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_FIRST));
    EXPECT_EQ(IDC_FIRST, FocusedId());
    EXPECT_EQ(IDC_SECOND, dialog.GetNextDlgTabItem(CWnd::GetFocus())->GetDlgCtrlID());
    EXPECT_EQ(IDCANCEL, dialog.GetNextDlgTabItem(CWnd::GetFocus(), TRUE)->GetDlgCtrlID());
}

TEST(DialogKeys, ReturnAndEscape)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_KEYS));
    dialog.ShowWindow(SW_SHOW);
    dialog.GetDlgItem(IDC_FIRST)->SetFocus();
    Press(VK_RETURN);
    EXPECT_EQ(1, dialog.oks);
    Press(VK_ESCAPE);
    EXPECT_EQ(1, dialog.cancels);
    EXPECT_NE(nullptr, dialog.m_hWnd) << "the overrides decide what happens";
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)), dialog.GetDefID());
    dialog.SetDefID(IDC_THIRD);
    EXPECT_EQ(IDC_THIRD, LOWORD(dialog.GetDefID()));
}

TEST(DialogKeys, EscapeInAMultilineEditDoesNotCloseWhatCannotBeCancelled)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_MULTILINE));
    dialog.ShowWindow(SW_SHOW);
    dialog.GetDlgItem(IDC_TEXT)->SetFocus();
    Press(VK_ESCAPE);
    EXPECT_EQ(0, dialog.cancels);
    EXPECT_NE(nullptr, dialog.m_hWnd);
}

TEST(DialogKeys, OtherMessagesAreLeftAlone)
{
    CModeless dialog;
    ASSERT_TRUE(dialog.Create(IDD_KEYS));
    MSG message = {};
    message.hwnd = dialog;
    message.message = WM_PAINT;
    EXPECT_FALSE(dialog.PreTranslateMessage(&message));
    message.message = WM_TIMER;
    EXPECT_FALSE(dialog.PreTranslateMessage(&message));
}

namespace
{
class CExchangeDlg : public CDialogEx
{
public:
    ~CExchangeDlg() override { DestroyWindow(); }

    CString text = "text";
    int number = 12;
    int check = BST_CHECKED;
    int radio = 1;
    int combo = -1;
    CEdit edit;
    int changes = 0;
    bool refuse = false;

    afx_msg void OnChange() { ++changes; }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialogEx::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_TEXT, edit);
        DDX_Text(pDX, IDC_TEXT, text);
        DDX_Text(pDX, IDC_NUMBER, number);
        DDX_Check(pDX, IDC_CHECK, check);
        DDX_Radio(pDX, IDC_RADIO_A, radio);
        DDX_CBIndex(pDX, IDC_COMBO, combo);
        if (refuse)
        {
            pDX->PrepareEditCtrl(IDC_NUMBER);
            pDX->Fail();
        }
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CExchangeDlg, CDialogEx)
    ON_EN_CHANGE(IDC_TEXT, &ThisClass::OnChange)
END_MESSAGE_MAP()
// clang-format on

class Exchange : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dialog.Create(IDD_CHILD, &m_frame));
        m_dialog.ShowWindow(SW_SHOW);
    }
    CTestFrame m_frame;
    CExchangeDlg m_dialog;
};
} // namespace

TEST_F(Exchange, ControlsAreLoadedAtTheStart)
{
    EXPECT_EQ(&m_dialog.edit, m_dialog.GetDlgItem(IDC_TEXT)) << "and subclassed";
    CString text;
    m_dialog.GetDlgItemText(IDC_TEXT, text);
    EXPECT_STREQ("text", text);
    EXPECT_EQ(12u, m_dialog.GetDlgItemInt(IDC_NUMBER));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), m_dialog.IsDlgButtonChecked(IDC_CHECK));
    EXPECT_FALSE(m_dialog.IsDlgButtonChecked(IDC_RADIO_A));
    EXPECT_TRUE(m_dialog.IsDlgButtonChecked(IDC_RADIO_B));
}

TEST_F(Exchange, MembersTakeWhatTheControlsHold)
{
    m_dialog.SetDlgItemText(IDC_TEXT, "新");
    m_dialog.SetDlgItemText(IDC_NUMBER, " -7 ");
    m_dialog.CheckDlgButton(IDC_CHECK, BST_UNCHECKED);
    m_dialog.CheckRadioButton(IDC_RADIO_A, IDC_RADIO_B, IDC_RADIO_A);
    m_dialog.SendDlgItemMessage(IDC_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("x"));
    m_dialog.SendDlgItemMessage(IDC_COMBO, CB_SETCURSEL, 0);
    EXPECT_TRUE(m_dialog.UpdateData());
    EXPECT_STREQ("新", m_dialog.text);
    EXPECT_EQ(-7, m_dialog.number);
    EXPECT_EQ(BST_UNCHECKED, m_dialog.check);
    EXPECT_EQ(0, m_dialog.radio);
    EXPECT_EQ(0, m_dialog.combo);
    m_dialog.CheckDlgButton(IDC_RADIO_A, BST_UNCHECKED);
    EXPECT_TRUE(m_dialog.UpdateData());
    EXPECT_EQ(-1, m_dialog.radio);
}

TEST_F(Exchange, ChangesByTheProgramAreNotNotified)
{
    m_dialog.changes = 0;
    m_dialog.text = "other";
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(0, m_dialog.changes);
    m_dialog.SetDlgItemText(IDC_TEXT, "again");
    EXPECT_EQ(1, m_dialog.changes) << "afterwards they are";
}

TEST_F(Exchange, FailureGivesTheFocusBack)
{
    m_frame.SetActiveWindow();
    m_dialog.GetDlgItem(IDC_TEXT)->SetFocus();
    m_dialog.refuse = true;
    EXPECT_FALSE(m_dialog.UpdateData());
    EXPECT_EQ(IDC_NUMBER, FocusedId());
    EXPECT_FALSE(m_dialog.UpdateData(FALSE));
    m_dialog.refuse = false;
    m_dialog.changes = 0;
    m_dialog.SetDlgItemText(IDC_TEXT, "again");
    EXPECT_EQ(1, m_dialog.changes) << "a failure leaves nothing locked";
}

TEST_F(Exchange, MissingControlFails)
{
    CDataExchange exchange(&m_dialog, TRUE);
    EXPECT_THROW(exchange.PrepareCtrl(9999), CUserException*);
}

TEST_F(Exchange, TextThatIsNoNumberIsToldAndFails)
{
    class CQuietApp : public CWinApp
    {
    public:
        int boxes = 0;
        int DoMessageBox(LPCTSTR, UINT, UINT) override
        {
            ++boxes;
            return IDOK;
        }
    };
    const auto boxesFor = [this](const char* text)
    {
        m_dialog.SetDlgItemText(IDC_NUMBER, text);
        AFX_MODULE_STATE other;
        AFX_MANAGE_STATE(&other);
        CQuietApp quiet;
        EXPECT_FALSE(m_dialog.UpdateData());
        return quiet.boxes;
    };
    EXPECT_EQ(1, boxesFor("12x"));
    EXPECT_EQ(1, boxesFor(""));
    EXPECT_EQ(1, boxesFor("99999999999"));
    EXPECT_EQ(12, m_dialog.number);
}
