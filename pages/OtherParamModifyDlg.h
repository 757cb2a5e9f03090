// The dialog "修改": changes the default volume of a contract or product.
#pragma once

#include "core/StopDefaults.h"
#include "pages/SkinnedDialog.h"

/// Shows the volume; the row's other values pass through hidden fields as whole numbers.
class COtherParamModifyDlg : public CSkinnedDialog
{
public:
    /// @param values what to change; they must live as long as the dialog and change at "确定" only
    COtherParamModifyDlg(StopProduct product, StopDefaultValues& values, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    int ReadNumber(UINT field) const;

    const StopProduct m_product;
    StopDefaultValues& m_values;
};
