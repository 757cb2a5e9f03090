#include "skin/grid/LtEdit.h"

#include "skin/grid/OwerDrawListView.h"

BEGIN_MESSAGE_MAP(CLtEdit, CEdit)
ON_WM_CREATE()
ON_WM_CHAR()
ON_WM_CONTEXTMENU()
ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

CLtEdit::CLtEdit()
{
    font.CreateFont(12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0, 0,
                    "宋体");
}

int CLtEdit::OnCreate(LPCREATESTRUCT createStruct)
{
    const int result = CEdit::OnCreate(createStruct);
    SetFont(&font);
    return result;
}

void CLtEdit::OnChar(UINT character, UINT repeatCount, UINT flags)
{
    if (acceptChars)
        CEdit::OnChar(character, repeatCount, flags);
}

void CLtEdit::OnContextMenu(CWnd* /*window*/, CPoint /*point*/) {}

void CLtEdit::OnKillFocus(CWnd* newWindow)
{
    CEdit::OnKillFocus(newWindow);
    if (auto* grid = dynamic_cast<COwerDrawListView*>(GetParent()))
        grid->CommitEdit();
}
