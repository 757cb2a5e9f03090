#include "pages/VolumeSetDlg.h"

#include "core/Text.h"
#include "resources/resource.h"
#include "skin/MyRichEdit.h"

namespace
{

constexpr int kTextCapacity = 32;

} // namespace

CVolumeSetDlg::CVolumeSetDlg(int volume, CWnd* parent)
    : CSkinnedDialog(IDD_VOLUME_SET, parent)
    , m_volume(volume)
{
}

BOOL CVolumeSetDlg::OnInitDialog()
{
    CSkinnedDialog::OnInitDialog();
    Drawn<CMyRichEdit_MyCtrl>(IDC_VOLUME).SetInputMode(kIntegerKeys);
    SetDlgItemText(IDC_VOLUME, std::to_string(static_cast<unsigned>(m_volume)).c_str());
    return TRUE;
}

BOOL CVolumeSetDlg::PreTranslateMessage(MSG* message)
{
    const CWnd& field = *GetDlgItem(IDC_VOLUME);
    const bool isLeadingZero = message->message == WM_CHAR && message->hwnd == field.m_hWnd &&
                               message->wParam == '0' && field.GetWindowTextLength() == 0;
    return isLeadingZero || CSkinnedDialog::PreTranslateMessage(message);
}

void CVolumeSetDlg::OnOK()
{
    char text[kTextCapacity];
    GetDlgItemText(IDC_VOLUME, text, sizeof(text));
    m_volume = ParseInt(text);
    CSkinnedDialog::OnOK();
}
