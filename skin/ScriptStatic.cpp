#include "skin/ScriptStatic.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"

BEGIN_MESSAGE_MAP(CScriptStatic, CStatic)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
END_MESSAGE_MAP()

BOOL CScriptStatic::OnEraseBkgnd(CDC* dc)
{
    CRect client;
    GetClientRect(&client);
    FillRect(*dc, &client, GetCachedBrush(kScriptBack));
    return TRUE;
}

void CScriptStatic::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CString text;
    GetWindowText(text);

    CFont* font = GetParent()->GetFont();
    CFont* oldFont = font ? dc.SelectObject(font) : nullptr;
    dc.SetBkMode(TRANSPARENT);
    DrawTextA(dc, text, -1, &client, DT_VCENTER | DT_SINGLELINE);
    if (oldFont)
        dc.SelectObject(oldFont);
}
