// A plain label in its parent's font on a flat colour.
#pragma once

#include <afxwin.h>

class CScriptStatic : public CStatic
{
protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};
