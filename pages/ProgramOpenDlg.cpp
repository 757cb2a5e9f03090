#include "pages/ProgramOpenDlg.h"

#include "core/WorkingParam.h"
#include "resources/resource.h"
#include "skin/SkinCache.h"

BEGIN_MESSAGE_MAP(CProgramOpenDlg, CSubMainDlg)
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CProgramOpenDlg::CProgramOpenDlg(CWnd* parent)
    : CSubMainDlg(IDD_INDICATOR, parent)
    , m_bindings(*this)
{
    m_bindings.Flag(IDC_ONE_OPEN, FIELD(bOneOpen));
    m_bindings.Flag(IDC_OPEN_PROMPT, FIELD(bOpenPrompt));
    m_bindings.Flag(IDC_STOCK_AUTO_OPEN, FIELD(bStockAutoOpen));
    m_bindings.Flag(IDC_FUTURE_AUTO_OPEN, FIELD(bFutureAutoOpen));
    m_bindings.Flag(IDC_DERIVATIVE_AUTO_OPEN, FIELD(bDerivativeAutoOpen));
    m_bindings.Flag(IDC_GOLD_AUTO_OPEN, FIELD(bGoldAutoOpen));
}

CProgramOpenDlg::~CProgramOpenDlg()
{
    DestroySubclassedCtrls();
}

BOOL CProgramOpenDlg::OnInitDialog()
{
    CSubMainDlg::OnInitDialog();
    SubclassChildren(m_hWnd);

    // Not offered to the trader at present: hidden, the boxes carry the record's values through.
    for (UINT control :
         {IDC_STOCK_AUTO_OPEN, IDC_FUTURE_AUTO_OPEN, IDC_DERIVATIVE_AUTO_OPEN, IDC_GOLD_AUTO_OPEN})
        GetDlgItem(control)->ShowWindow(SW_HIDE);
    m_bindings.Load(WorkingParam());
    return TRUE;
}

void CProgramOpenDlg::SavePages()
{
    m_bindings.Save(WorkingParam());
}

void CProgramOpenDlg::RestoreCurrentPage()
{
    m_bindings.Restore();
}

BOOL CProgramOpenDlg::OnEraseBkgnd(CDC* dc)
{
    FillPageBackground(*dc, m_hWnd);
    return TRUE;
}
