#include "skin/ScriptStatic.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/SkinDraw.h"

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

    const auto font = reinterpret_cast<HFONT>(GetParent()->SendMessage(WM_GETFONT));
    DrawTextLine(dc, text, client, font, kBlackText);
}
