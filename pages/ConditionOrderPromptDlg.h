// Tells what a change of the condition-order mode means and asks for the restart that it needs.
#pragma once

#include "pages/SkinnedDialog.h"

/// DoModal answers IDOK for "立即重启".
class CConditionOrderPromptDlg : public CSkinnedDialog
{
public:
    /// @param text the message, which must live as long as the dialog; null shows none
    CConditionOrderPromptDlg(const char* text, CWnd* parent);

protected:
    BOOL OnInitDialog() override;

private:
    int MissingHeight();
    void Grow(int height);

    const char* const text;
};
