#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <gtest/gtest.h>

namespace
{
/// A dialog that runs a step when it is shown and idle.
class CPlainDlg : public CDialog
{
public:
    explicit CPlainDlg(CWnd* parent = nullptr, UINT id = IDD_PLAIN)
        : CDialog(id, parent)
    {
    }

    std::function<void(CPlainDlg&)> onInit;
    std::function<void(CPlainDlg&)> onIdle;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (onInit)
        {
            onInit(*this);
        }
        return TRUE;
    }
    using CDialog::OnCancel;
    using CDialog::OnOK;

    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        if (onIdle)
        {
            const auto step = onIdle;
            onIdle = nullptr;
            step(*this);
        }
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CPlainDlg, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &ThisClass::OnKickIdle)
END_MESSAGE_MAP()
// clang-format on

void Press(CWnd& dialog, UINT key)
{
    ::PostMessage(::GetFocus() ? ::GetFocus() : dialog.m_hWnd, WM_KEYDOWN, key, 1);
}
} // namespace

TEST(Modal, OkEndsWithIdOk)
{
    CPlainDlg dialog;
    dialog.onIdle = [](CPlainDlg& d)
    {
        d.GetDlgItem(IDOK)->SendMessage(BM_CLICK);
    };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(Modal, EscapeCancels)
{
    CPlainDlg dialog;
    dialog.onIdle = [](CPlainDlg& d)
    {
        Press(d, VK_ESCAPE);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}
