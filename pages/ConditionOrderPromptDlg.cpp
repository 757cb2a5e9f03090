#include "pages/ConditionOrderPromptDlg.h"

#include "resources/resource.h"

CConditionOrderPromptDlg::CConditionOrderPromptDlg(const char* text, CWnd* parent)
    : CSkinnedDialog(IDD_CONDITION_PROMPT, parent)
    , text(text)
{
}

BOOL CConditionOrderPromptDlg::OnInitDialog()
{
    CSkinnedDialog::OnInitDialog();
    if (!text)
        return TRUE;
    SetDlgItemText(IDC_PROMPT_TEXT, text);
    const int missing = MissingHeight();
    if (missing > 0)
        Grow(missing);
    return TRUE;
}

/// Pixels that the text needs more than the template gives it; a deployment may have its own text.
int CConditionOrderPromptDlg::MissingHeight()
{
    CWnd& label = *GetDlgItem(IDC_PROMPT_TEXT);
    CRect area;
    label.GetClientRect(&area);
    CRect needed = area;
    CClientDC dc(&label);
    CFont* const old = dc.SelectObject(label.GetFont());
    dc.DrawText(text, -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    dc.SelectObject(old);
    return needed.Height() - area.Height();
}

void CConditionOrderPromptDlg::Grow(int height)
{
    CRect area;
    GetDlgItem(IDC_PROMPT_TEXT)->GetWindowRect(&area);
    ScreenToClient(&area);
    area.bottom += height;
    GetDlgItem(IDC_PROMPT_TEXT)->MoveWindow(&area);
    for (UINT button : {IDOK, IDCANCEL})
    {
        GetDlgItem(button)->GetWindowRect(&area);
        ScreenToClient(&area);
        area.OffsetRect(0, height);
        GetDlgItem(button)->MoveWindow(&area);
    }
    GetWindowRect(&area);
    SetWindowPos(nullptr, 0, 0, area.Width(), area.Height() + height, SWP_NOMOVE | SWP_NOZORDER);
    CenterWindow();
}
