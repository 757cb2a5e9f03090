#include "skin/NumEdit.h"

#include "skin/SpinValue.h"

BEGIN_MESSAGE_MAP(CNumEdit, CEdit)
ON_WM_CHAR()
END_MESSAGE_MAP()

void CNumEdit::OnChar(UINT key, UINT repeats, UINT flags)
{
    // The characters of copy, cut and paste are dropped with the others; that is meant.
    if (NumEditTakesKey(key))
        CEdit::OnChar(key, repeats, flags);
}
