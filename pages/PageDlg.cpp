#include "pages/PageDlg.h"

#include "core/WorkingParam.h"
#include "skin/MyRichEdit.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "skin/grid/GridKeys.h"
#include "skin/grid/OwerDrawListView.h"

CPageDlg::CPageDlg(UINT templateId, CWnd* parent)
    : CChildDlg(templateId, parent)
{
}

bool CPageDlg::Validate()
{
    return true;
}

BOOL CPageDlg::PreTranslateMessage(MSG* message)
{
    auto* const grid = dynamic_cast<COwerDrawListView*>(CWnd::FromHandlePermanent(message->hwnd));
    return (grid && WorkGridByKey(*grid, *message)) || CChildDlg::PreTranslateMessage(message);
}

bool CPageDlg::Refuse(UINT field, const char* message)
{
    MessageBox(message, "提示", MB_OK);
    CWnd* const control = GetDlgItem(field);
    if (control && control->IsWindowVisible())
    {
        control->SetFocus();
        control->SendMessage(EM_SETSEL, 0, -1);
    }
    return false;
}

BEGIN_MESSAGE_MAP(CSheetPageDlg, CPageDlg)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

BOOL CSheetPageDlg::OnEraseBkgnd(CDC* dc)
{
    FillPageBackground(*dc, m_hWnd);
    return TRUE;
}

HBRUSH CSheetPageDlg::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = CPageDlg::OnCtlColor(dc, control, type);
    return type == CTLCOLOR_STATIC ? ColorStaticOnSheet(*dc) : brush;
}

CBoundPageDlg::CBoundPageDlg(UINT templateId, CWnd* parent)
    : CSheetPageDlg(templateId, parent)
    , m_bindings(*this)
{
}

CBoundPageDlg::~CBoundPageDlg()
{
    DestroySubclassedCtrls();
}

BOOL CBoundPageDlg::OnInitDialog()
{
    CSheetPageDlg::OnInitDialog();
    SubclassChildren(m_hWnd);
    SetUpControls();
    DeclareBindings(m_bindings);
    LoadFromParam();
    return TRUE;
}

void CBoundPageDlg::LoadFromParam()
{
    m_bindings.Load(WorkingParam());
}

void CBoundPageDlg::RestoreDefaults()
{
    m_bindings.Restore();
}

void CBoundPageDlg::SaveToParam()
{
    m_bindings.Save(WorkingParam());
}

void CBoundPageDlg::SetUpSpin(UINT edit, double step, int decimals, double minimum, double maximum)
{
    auto& field = Drawn<CMyRichEdit_MyCtrl>(edit);
    field.EnableSpin();
    field.SetSpinRange(step, decimals, minimum, maximum);
}

void CBoundPageDlg::SetUpSpin(UINT edit, double step, int decimals, double minimum, double maximum,
                              int mode)
{
    SetUpSpin(edit, step, decimals, minimum, maximum);
    Drawn<CMyRichEdit_MyCtrl>(edit).SetInputMode(mode);
}

HBRUSH ColorStaticOnSheet(CDC& dc)
{
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(kControlText);
    return GetCachedBrush(kPageSheet);
}
