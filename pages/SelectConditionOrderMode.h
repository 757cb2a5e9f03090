// The wizard of the first run: where condition orders are to run.
#pragma once

#include "pages/SkinnedDialog.h"

/// Runs while the module is loaded, before the host has called anything: it needs files only. "确定"
/// writes the choice straight to the package file, "取消" writes nothing.
class CSelectConditionOrderMode : public CSkinnedDialog
{
public:
    explicit CSelectConditionOrderMode(CWnd* parent = nullptr);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
};
