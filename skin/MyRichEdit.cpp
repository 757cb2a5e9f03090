#include "skin/MyRichEdit.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"
#include "skin/SpinLayout.h"

#include <set>

namespace
{

constexpr int kTextBytes = 128;

// A spin button lies outside the client area of its field. One mouse hook on the thread serves all
// fields that have one.
std::set<CMyRichEdit_MyCtrl*> spinEdits;
HHOOK spinHook = nullptr;

CRect WindowInClient(const CWnd& wnd)
{
    CRect window;
    wnd.GetWindowRect(&window);
    wnd.ScreenToClient(&window);
    return window;
}

SpinColumn SpinColumnOf(const CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    const CRect window = WindowInClient(wnd);
    return LayOutSpinColumn(client.right, window.right, window.bottom);
}

/// Height of a line of Chinese text in the window's font, or its parent's.
int LineHeight(const CWnd& wnd)
{
    CFont* font = wnd.GetFont();
    if (!font)
        font = wnd.GetParent()->GetFont();

    CClientDC screen(nullptr);
    CFont* oldFont = font ? screen.SelectObject(font) : nullptr;
    SIZE sample = {};
    GetTextExtentPoint32A(screen, "我", sizeof("我") - 1, &sample);
    if (oldFont)
        screen.SelectObject(oldFont);
    return sample.cy;
}

} // namespace

BEGIN_MESSAGE_MAP(CMyRichEdit_MyCtrl, CRichEditCtrl)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_ENABLE()
ON_WM_NCCALCSIZE()
ON_WM_NCPAINT()
ON_WM_MOUSEWHEEL()
ON_WM_CHAR()
ON_WM_KEYDOWN()
END_MESSAGE_MAP()

CMyRichEdit_MyCtrl::CMyRichEdit_MyCtrl()
{
    SetSpinBitmap(GetSkinBitmap(".\\skin\\ctrl\\Spin.bmp"));
}

CMyRichEdit_MyCtrl::~CMyRichEdit_MyCtrl()
{
    spinEdits.erase(this);
    if (spinEdits.empty() && spinHook)
    {
        UnhookWindowsHookEx(spinHook);
        spinHook = nullptr;
    }
}

void CMyRichEdit_MyCtrl::SetSpinRange(double step, int decimals, double minValue, double maxValue)
{
    range = {step, decimals, minValue, maxValue};
}

void CMyRichEdit_MyCtrl::EnableSpin()
{
    spinEnabled = true;
    if (m_hWnd)
        MakeRoomForSpin();
    spinEdits.insert(this);
    if (!spinHook)
        spinHook = SetWindowsHookExA(WH_MOUSE, MouseHook, nullptr, GetCurrentThreadId());
}

void CMyRichEdit_MyCtrl::SetInputMode(int mode)
{
    inputMode = mode;
}

void CMyRichEdit_MyCtrl::SetSpinBitmap(HBITMAP bitmap)
{
    const SIZE size = GetBitmapSize(bitmap);
    spinBitmap = bitmap;
    spinWidth = size.cx;
    spinHeight = size.cy;
}

void CMyRichEdit_MyCtrl::SetBackColor(COLORREF color)
{
    SendMessage(EM_SETBKGNDCOLOR, 0, static_cast<LPARAM>(color));
}

void CMyRichEdit_MyCtrl::SetTextColor(COLORREF color)
{
    CHARFORMAT format = {};
    GetDefaultCharFormat(format);
    format.dwMask = CFM_COLOR;
    // As long as this is set the system's text colour wins.
    format.dwEffects &= ~CFE_AUTOCOLOR;
    format.crTextColor = color;
    SetDefaultCharFormat(format);
}

void CMyRichEdit_MyCtrl::CenterTextVertically()
{
    CRect client;
    GetClientRect(&client);
    const RECT line = RectOf(CentredLine(client.Width(), client.Height(), LineHeight(*this)));
    SetFormatRect(&line);
    centred = true;
}

void CMyRichEdit_MyCtrl::SetFormatRect(const RECT* rect)
{
    centred = false;
    SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(rect));
}

void CMyRichEdit_MyCtrl::SpinClick(CPoint point)
{
    const SpinButton arrow = HitSpin(SpinColumnOf(*this), point.x, point.y);
    if (arrow == SpinButton::kNone)
        return;

    spinState = arrow;
    Step(arrow);
    DrawSpin();
}

void CMyRichEdit_MyCtrl::Step(SpinButton arrow)
{
    char text[kTextBytes];
    GetWindowText(text, sizeof(text));
    SetWindowText(StepSpinText(text, arrow, range).c_str());
}

void CMyRichEdit_MyCtrl::ReleaseSpin()
{
    spinState = SpinButton::kNone;
    DrawSpin();
}

void CMyRichEdit_MyCtrl::PreSubclassWindow()
{
    CRichEditCtrl::PreSubclassWindow();
    AskForChanges();
}

int CMyRichEdit_MyCtrl::OnCreate(CREATESTRUCT* creation)
{
    if (CRichEditCtrl::OnCreate(creation) == -1)
        return -1;
    AskForChanges();
    return 0;
}

/// A rich edit tells its parent of no change unless it is asked to. Called at attaching and at
/// creation: in the one case there is no creation, in the other no rich edit yet when attaching.
void CMyRichEdit_MyCtrl::AskForChanges()
{
    SetEventMask(GetEventMask() | ENM_CHANGE);
}

void CMyRichEdit_MyCtrl::OnSize(UINT type, int width, int height)
{
    CRichEditCtrl::OnSize(type, width, height);
    if (centred)
        CenterTextVertically();
}

void CMyRichEdit_MyCtrl::OnEnable(BOOL enabled)
{
    CRichEditCtrl::OnEnable(enabled);
    // A disabled field sees no button come up.
    ReleaseSpin();
}

/// The frame is only laid out anew when the size changes.
void CMyRichEdit_MyCtrl::MakeRoomForSpin()
{
    CRect window;
    GetWindowRect(&window);
    GetParent()->ScreenToClient(&window);
    MoveWindow(window.left, window.top, window.Width() + 1, window.Height());
    MoveWindow(&window);
}

void CMyRichEdit_MyCtrl::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    if (spinEnabled)
    {
        RECT& window = params->rgrc[0];
        window = RectOf(ReserveSpinColumn(BoxOf(window)));
    }
    CRichEditCtrl::OnNcCalcSize(calcValidRects, params);
}

void CMyRichEdit_MyCtrl::OnNcPaint()
{
    // Scroll bars, where the field has any.
    Default();
    DrawSpin();
}

void CMyRichEdit_MyCtrl::OnChar(UINT key, UINT repeats, UINT flags)
{
    if (SpinTakesKey(inputMode, key))
        CRichEditCtrl::OnChar(key, repeats, flags);
}

/// One line has nothing to scroll, but the page around it may. A rich edit would keep the message and
/// show a scroll bar of its own.
BOOL CMyRichEdit_MyCtrl::OnMouseWheel(UINT, short, CPoint)
{
    const MSG* const message = GetCurrentMessage();
    GetParent()->SendMessage(message->message, message->wParam, message->lParam);
    return TRUE;
}

void CMyRichEdit_MyCtrl::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    // The spin button never has the focus, so its field takes its keys.
    if (spinEnabled && (key == VK_UP || key == VK_DOWN))
        return Step(key == VK_UP ? SpinButton::kUp : SpinButton::kDown);
    CRichEditCtrl::OnKeyDown(key, repeats, flags);
}

BOOL CMyRichEdit_MyCtrl::PreTranslateMessage(MSG* message)
{
    // Backspace is dropped with the rest: a rich edit acts on the key, not on its character.
    if (message->message == WM_CHAR && message->hwnd == m_hWnd && (GetStyle() & ES_NUMBER) &&
        !IsDigitKey(static_cast<unsigned>(message->wParam)))
        return TRUE;
    return CRichEditCtrl::PreTranslateMessage(message);
}

void CMyRichEdit_MyCtrl::DrawSpin()
{
    if (!m_hWnd)
        return;
    CWindowDC dc(this);
    const CRect window = WindowInClient(*this);
    // The frame, too, is drawn in the coordinates of the client area.
    dc.SetViewportOrg(-window.left, -window.top);
    if (spinEnabled)
    {
        DrawArrow(dc, SpinButton::kUp);
        DrawArrow(dc, SpinButton::kDown);
    }
    FrameRect(dc, &window, GetCachedBrush(kFieldBack));
}

void CMyRichEdit_MyCtrl::DrawArrow(HDC dc, SpinButton arrow)
{
    const BitmapPart part =
        SpinArrowPart(SpinColumnOf(*this), arrow, spinWidth, spinHeight, spinState == arrow);
    if (!part.IsEmpty())
    {
        DrawBitmapPart(dc, spinBitmap, part);
        return;
    }
    // The button is there and plain, and does not show what lay on the screen before.
    const RECT place = RectOf(part.target);
    FillRect(dc, &place, GetCachedBrush(kFieldBack));
}

/// The field with a spin button whose window is the topmost one at a point of the screen. A disabled
/// one is never found: the system looks through it.
CMyRichEdit_MyCtrl* CMyRichEdit_MyCtrl::SpinEditAt(CPoint screenPoint)
{
    const HWND hit = ::WindowFromPoint(screenPoint);
    for (CMyRichEdit_MyCtrl* edit : spinEdits)
    {
        CRect window;
        if (edit->m_hWnd && edit->m_hWnd == hit && ::GetWindowRect(hit, &window) &&
            window.PtInRect(screenPoint) && edit->IsWindowVisible())
            return edit;
    }
    return nullptr;
}

LRESULT CALLBACK CMyRichEdit_MyCtrl::MouseHook(int code, WPARAM message, LPARAM info)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    // The second press of a double click is another message and steps nothing; that is meant.
    const bool isPress = message == WM_NCLBUTTONDOWN;
    if (code == HC_ACTION && (isPress || message == WM_NCLBUTTONUP))
    {
        CPoint point;
        GetCursorPos(&point);
        if (CMyRichEdit_MyCtrl* edit = SpinEditAt(point))
        {
            edit->ScreenToClient(&point);
            isPress ? edit->SpinClick(point) : edit->ReleaseSpin();
        }
    }
    return CallNextHookEx(spinHook, code, message, info);
}
