#include "tools/gallery/GalleryDlg.h"

#include "skin/ColorButton.h"
#include "skin/IconListBox.h"
#include "skin/MyCheckBox.h"
#include "skin/MyComboBox.h"
#include "skin/MyListBox.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "tools/gallery/resource.h"

namespace
{

constexpr int kWidth = 1200;
constexpr int kHeight = 760;
constexpr int kFontHeight = 16;
constexpr UINT_PTR kOpenListTimer = 1;
constexpr UINT kOpenListAfter = 1500; // milliseconds
constexpr DWORD kShown = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

/// Controls that show a state without a mouse.
template <typename Control>
class CPressed : public Control
{
public:
    void Press() { this->pressed = true; }
};

template <typename Button>
class CStill : public Button
{
public:
    void Show(ButtonState shown) { this->state = shown; }

protected:
    // The mouse of whoever looks leaves the state alone.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST)
            return 0;
        return Button::WindowProc(message, wParam, lParam);
    }
};

struct NamedState
{
    const char* name;
    ButtonState state;
};

constexpr NamedState kStates[] = {
    {"常态", ButtonState::Normal}, {"悬停", ButtonState::Hover}, {"按下", ButtonState::Pressed}};

} // namespace

BEGIN_MESSAGE_MAP(CGalleryDlg, CDialog)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_TIMER()
ON_MESSAGE(WM_GETFONT, OnGetFont)
END_MESSAGE_MAP()

CGalleryDlg::CGalleryDlg()
    : CDialog(IDD_GALLERY)
{
}

CGalleryDlg::~CGalleryDlg()
{
    DestroySubclassedCtrls();
}

BOOL CGalleryDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    font.CreateFont(-Scaled(kFontHeight), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                    OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FF_SWISS, "黑体");

    CRect window(0, 0, Scaled(kWidth), Scaled(kHeight));
    AdjustWindowRectEx(window, GetStyle(), FALSE, GetExStyle());
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOZORDER);
    CenterWindow();

    AddCheckBoxes();
    AddComboBoxes();
    AddImageList();
    AddCheckList();
    AddIconList();
    AddDialogButtons();
    AddDarkButtons();
    AddFields();
    AddTabStrips();
    AddTexts();
    // A window that has just been shown may be activated once more, which closes the list.
    SetTimer(kOpenListTimer, kOpenListAfter, nullptr);
    return TRUE;
}

BOOL CGalleryDlg::OnEraseBkgnd(CDC* dc)
{
    FillPageBackground(dc->m_hDC, m_hWnd);
    return TRUE;
}

HBRUSH CGalleryDlg::OnCtlColor(CDC* dc, CWnd*, UINT)
{
    dc->SetTextColor(kControlText);
    dc->SetBkMode(TRANSPARENT);
    return GetCachedBrush(kPageSheet);
}

// The font that controls take from their parent: the template's does not grow with the scale.
LRESULT CGalleryDlg::OnGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(font.GetSafeHandle());
}

void CGalleryDlg::OnTimer(UINT_PTR timer)
{
    KillTimer(timer);
    openCombo->SetFocus();
    // Before the list, which stands on top of all: Wine raises no window that is not the topmost.
    ShowTip();
    openCombo->ShowDropDown(TRUE);
}

HWND CGalleryDlg::Add(const char* className, const char* text, DWORD style, int x, int y, int width,
                      int height, int id)
{
    const HWND control = ::CreateWindowA(
        className, text, style, Scaled(x), Scaled(y), Scaled(width), Scaled(height), m_hWnd,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), AfxGetInstanceHandle(), nullptr);
    ::SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()), FALSE);
    return control;
}

void CGalleryDlg::AddTitle(const char* text, int x, int y)
{
    const HWND title = Add("Static", text, WS_CHILD | WS_VISIBLE, x, y, 110, 24);
    const HFONT bold = GetCachedFont("黑体", Scaled(17), FW_BOLD);
    ::SendMessageA(title, WM_SETFONT, reinterpret_cast<WPARAM>(bold), FALSE);
}

void CGalleryDlg::AddLabel(const char* text, int x, int y)
{
    Add("Static", text, WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE, x, y, 70, 26);
}

void CGalleryDlg::AddCheckBoxes()
{
    using Check = CPressed<CMyCheckBox_MyCtrl>;
    constexpr int kLeft = 40;
    constexpr int kTop = 76;
    AddTitle("复选框", kLeft, 40);
    const auto add = [this](const char* text, int column, int row) -> Check&
    {
        return Keep<Check>(Add("Button", text, kShown | BS_AUTOCHECKBOX, kLeft + column * 150,
                               kTop + row * 30, 140, 26));
    };
    for (const bool checked : {false, true})
    {
        add("可用", checked, 0).SetCheck(checked);
        Check& pressed = add("按下", checked, 1);
        pressed.SetCheck(checked);
        pressed.Press();
        Check& disabled = add("不可用", checked, 2);
        disabled.SetCheck(checked);
        disabled.EnableWindow(FALSE);
    }
    add("加框", 0, 3).SetDrawFrame(true);
    add("间距 4 像素", 1, 3).SetTextGap(4);
}

void CGalleryDlg::AddComboBoxes()
{
    using Combo = CPressed<CMyComboBox_MyCtrl>;
    constexpr int kLeft = 380;
    constexpr int kTop = 76;
    AddTitle("组合框", kLeft, 40);
    const auto add = [this](const char* label, int row, int selection) -> Combo&
    {
        const int y = kTop + row * 38;
        AddLabel(label, kLeft, y);
        const HWND window =
            Add("ComboBox", "",
                kShown | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS,
                kLeft + 76, y, 160, 300);
        Combo& combo = Keep<Combo>(window);
        for (const char* text : {"对手价", "最新价", "挂单价", "涨停价", "跌停价"})
            combo.AddString(text);
        combo.SetCurSel(selection);
        return combo;
    };
    add("已选", 0, 1);
    add("未选", 1, -1);
    add("按下", 2, 0).Press();
    add("不可用", 3, 3).EnableWindow(FALSE);
    openCombo = &add("展开", 4, 2);
}

void CGalleryDlg::AddImageList()
{
    AddTitle("页面列表", 40, 220);
    auto& list = Keep<CMyListBox_MyCtrl>(
        Add("ListBox", "",
            kShown | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT, 40,
            256, 190, 240));
    const struct
    {
        const char* text;
        int image;
    } pages[] = {{"公共设置", 0},           {"期权设置", 8},      {"期货/黄金设置", 9},
                 {"证券/融资融券设置", 10}, {"指标策略交易", 12}, {"其它", 11}};
    for (const auto& page : pages)
        list.AddItem(page.text, page.image);
    list.SetCurSel(1);

    auto& selected = Keep<CMyListBox_MyCtrl>(
        Add("ListBox", "",
            kShown | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT, 40,
            510, 190, 40));
    selected.AddItem("无图标", -1);
    selected.SetCurSel(0);
}

void CGalleryDlg::AddCheckList()
{
    AddTitle("勾选列表", 250, 220);
    auto& list = Keep<CMyListBox_MyCtrl>(Add("ListBox", "",
                                             kShown | WS_BORDER | LBS_NOTIFY | LBS_OWNERDRAWFIXED |
                                                 LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
                                             250, 256, 110, 200));
    list.EnableCheckMode();
    for (const char* text : {"IF2406", "IC2406", "IH2406", "IM2406"})
        list.AddItem(text);
    list.SetItemChecked(0, 1);
    list.SetItemChecked(2, 1);
    list.SetCurSel(1);
}

void CGalleryDlg::AddIconList()
{
    AddTitle("图标列表", 250, 470);
    auto& list = Keep<CMyListBox>(Add("ListBox", "",
                                      kShown | WS_BORDER | LBS_NOTIFY | LBS_OWNERDRAWFIXED |
                                          LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
                                      250, 500, 110, 72));
    list.SetItemHeight(0, Scaled(24));
    for (const char* text : {"上证", "深证", "中金"})
        list.AddString(text);
    list.SetCurSel(1);
}

void CGalleryDlg::AddDialogButtons()
{
    AddTitle("确定与取消", 40, 590);
    const auto add = [this](const char* text, int x, int y, ButtonState state, bool isOk)
    {
        auto& button = Keep<CStill<CColorButton>>(Add("Button", text, kShown, x, y, 90, 30));
        if (!isOk)
            button.SetBackColors(kCancelButton, kCancelButtonHover, kCancelButtonPressed);
        button.Show(state);
    };
    int x = 40;
    for (const NamedState& state : kStates)
    {
        add("确定", x, 626, state.state, true);
        add("取消", x, 666, state.state, false);
        AddLabel(state.name, x + 26, 700);
        x += 104;
    }
}

void CGalleryDlg::AddDarkButtons()
{
    AddTitle("渐变按钮", 380, 590);
    const auto add = [this](const char* text, int x, int y) -> CStill<CBlackButton>&
    {
        return Keep<CStill<CBlackButton>>(Add("Button", text, kShown, x, y, 90, 30));
    };
    int x = 380;
    for (const NamedState& state : kStates)
    {
        add(state.name, x, 626).Show(state.state);
        x += 104;
    }
    add("默认", 380, 666).Show(ButtonState::Third);
    add("不可用", 484, 666).EnableWindow(FALSE);
    add("浅色", 588, 666)
        .SetGradient(kPageSheet, kPageSurround, kThinFrame, kPageSurround, kPageSheet,
                     kPageSurround);
}
