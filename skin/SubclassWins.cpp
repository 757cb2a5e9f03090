#include "skin/SubclassWins.h"

#include "skin/ColorButton.h"
#include "skin/MyCheckBox.h"
#include "skin/MyComboBox.h"
#include "skin/MyListBox.h"
#include "skin/MyRichEdit.h"
#include "skin/Palette.h"

#include <new>

namespace
{

constexpr int kClassNameCapacity = 256;

DrawnControl ChooseFor(HWND window)
{
    char className[kClassNameCapacity] = "";
    GetClassNameA(window, className, sizeof(className));
    return ChooseDrawnControl(className, static_cast<uint32_t>(GetWindowLongA(window, GWL_STYLE)),
                              GetDlgCtrlID(window));
}

/// A new object attached to the window; null when there is no memory for it.
template <typename Control>
std::unique_ptr<Control> Attach(HWND window)
{
    std::unique_ptr<Control> control(new (std::nothrow) Control);
    if (control)
        control->SubclassWindow(window);
    return control;
}

std::unique_ptr<CWnd> AttachComboBox(HWND window)
{
    auto control = Attach<CMyComboBox_MyCtrl>(window);
    if (!control)
        return nullptr;
    const LONG style = GetWindowLongA(window, GWL_STYLE);
    control->SnapshotItems();
    // Without effect on how the window draws: that was settled when it was created.
    SetWindowLongA(window, GWL_STYLE, style | CBS_OWNERDRAWVARIABLE);
    return control;
}

std::unique_ptr<CWnd> AttachDialogButton(HWND window)
{
    auto control = Attach<CColorButton>(window);
    if (!control)
        return nullptr;
    if (GetDlgCtrlID(window) == IDOK)
        control->SetBackColors(kOkButton, kOkButtonHover, kOkButtonPressed);
    else
        control->SetBackColors(kCancelButton, kCancelButtonHover, kCancelButtonPressed);
    control->SetTextColors(kDialogButtonText, kDialogButtonText, kDialogButtonText);
    return control;
}

std::unique_ptr<CWnd> AttachRichEdit(HWND window)
{
    auto control = Attach<CMyRichEdit_MyCtrl>(window);
    if (!control)
        return nullptr;
    control->SetBackColor(kFieldBack);
    control->SetTextColor(kControlText);
    control->CenterTextVertically();
    return control;
}

std::unique_ptr<CWnd> AttachDrawnControl(HWND window)
{
    switch (ChooseFor(window))
    {
    case DrawnControl::ComboBox:
        return AttachComboBox(window);
    case DrawnControl::CheckBox:
        return Attach<CMyCheckBox_MyCtrl>(window);
    case DrawnControl::DialogButton:
        return AttachDialogButton(window);
    case DrawnControl::RichEdit:
        return AttachRichEdit(window);
    case DrawnControl::ListBox:
        return Attach<CMyListBox_MyCtrl>(window);
    case DrawnControl::None:
        break;
    }
    return nullptr;
}

} // namespace

CSubclassWins::~CSubclassWins()
{
    DestroySubclassedCtrls();
}

void CSubclassWins::SubclassChildren(HWND parent)
{
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        SubclassChildren(child);
        SubclassControl(child);
    }
}

void CSubclassWins::SubclassControl(HWND window)
{
    // One window takes one object only; a page may have attached its own.
    if (CWnd::FromHandlePermanent(window))
        return;
    if (auto control = AttachDrawnControl(window))
        controls.push_back(std::move(control));
}

CWnd* CSubclassWins::GetSubclassedCtrl(UINT id) const
{
    for (const auto& control : controls)
        if (control->m_hWnd && static_cast<UINT>(control->GetDlgCtrlID()) == id)
            return control.get();
    return nullptr;
}

void CSubclassWins::DestroySubclassedCtrls()
{
    controls.clear();
}
