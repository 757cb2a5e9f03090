// A plain edit that takes digits, a point and backspace.
#pragma once

#include <afxwin.h>

class CNumEdit : public CEdit
{
protected:
    afx_msg void OnChar(UINT key, UINT repeats, UINT flags);
    DECLARE_MESSAGE_MAP()
};
