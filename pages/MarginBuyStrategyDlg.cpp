#include "pages/MarginBuyStrategyDlg.h"

#include "core/PackageFile.h"
#include "core/Text.h"
#include "core/WorkingParam.h"
#include "pages/MarginStrategies.h"
#include "pages/ShippedSettings.h"
#include "resources/resource.h"
#include "skin/MyCheckBox.h"
#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <algorithm>

/// A box that carries its strategy.
class CStrategyCheckBox : public CMyCheckBox_MyCtrl
{
public:
    int strategy = 0;
};

namespace
{

constexpr char kFinancingFirst[] = "3";

// The row of boxes and the explanation below it, to be scaled.
constexpr int kTypeHeight = 16;
constexpr int kMargin = 32;
constexpr int kBoxWidth = 140;
constexpr int kBoxStep = 160;
constexpr int kLineHeight = 20;
constexpr int kExplanationWidth = 800;

} // namespace

BEGIN_MESSAGE_MAP(CMarginBuyStrategyDlg, CSheetPageDlg)
ON_WM_CREATE()
ON_COMMAND_RANGE(IDC_MARGIN_CHOICE_1, IDC_MARGIN_CHOICE_4, &CMarginBuyStrategyDlg::OnChoice)
END_MESSAGE_MAP()

CMarginBuyStrategyDlg::CMarginBuyStrategyDlg(CWnd* parent)
    : CSheetPageDlg(IDD_MARGIN_BUY, parent)
    , m_explanation("黑体", kTypeHeight, 400, kDarkText, 0, DT_WORDBREAK | DT_EDITCONTROL)
{
}

CMarginBuyStrategyDlg::~CMarginBuyStrategyDlg() = default;

int CMarginBuyStrategyDlg::OnCreate(CREATESTRUCT* creation)
{
    if (CSheetPageDlg::OnCreate(creation) == -1)
        return -1;
    BuildChoices();
    return 0;
}

void CMarginBuyStrategyDlg::BuildChoices()
{
    const std::vector<std::string> offered = OfferedStrategies(MarginBuyStrategyItems());
    for (const std::string& value : offered)
        AddChoice(value, MarginStrategyLabel(value));

    m_explanation.Create("融资优先：优先下单融资，剩余数量（买入数量 - "
                         "最大可融资数量）下单担保品买入",
                         WS_CHILD, CRect(0, 0, 0, 0), this, 0xffff);
    if (std::count(offered.begin(), offered.end(), kFinancingFirst) != 0)
        m_explanation.ShowWindow(SW_SHOW);
}

void CMarginBuyStrategyDlg::AddChoice(const std::string& value, const char* label)
{
    auto choice = std::make_unique<CStrategyCheckBox>();
    choice->Create(label, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX, CRect(0, 0, 0, 0),
                   this, IDC_MARGIN_CHOICE_1 + static_cast<UINT>(m_choices.size()));
    choice->SendMessage(WM_SETFONT,
                        reinterpret_cast<WPARAM>(GetCachedFont("黑体", Scaled(kTypeHeight), 500)),
                        TRUE);
    choice->strategy = ParseInt(value.c_str());
    choice->SetCheck(static_cast<uint32_t>(choice->strategy) == WorkingParam().uMarginBuyStrategy);
    m_choices.push_back(std::move(choice));
}

BOOL CMarginBuyStrategyDlg::OnInitDialog()
{
    CSheetPageDlg::OnInitDialog();
    CRect client;
    GetClientRect(&client);

    CRect box(CPoint(client.left + Scaled(kMargin), client.top + Scaled(kMargin)),
              CSize(Scaled(kBoxWidth), Scaled(kLineHeight)));
    for (const auto& choice : m_choices)
    {
        choice->MoveWindow(&box);
        box.OffsetRect(Scaled(kBoxStep), 0);
    }
    m_explanation.MoveWindow(Scaled(kMargin), box.bottom + Scaled(kMargin),
                             Scaled(kExplanationWidth), Scaled(kLineHeight));
    return TRUE;
}

void CMarginBuyStrategyDlg::OnChoice(UINT control)
{
    SelectChoice(control - IDC_MARGIN_CHOICE_1);
}

void CMarginBuyStrategyDlg::SelectChoice(size_t index)
{
    if (index >= m_choices.size())
        return;
    for (size_t i = 0; i < m_choices.size(); ++i)
        m_choices[i]->SetCheck(i == index);
}

void CMarginBuyStrategyDlg::SaveToParam()
{
    if (!GetSafeHwnd())
        return;
    for (const auto& choice : m_choices)
    {
        if (!choice->GetCheck())
            continue;
        WorkingParam().uMarginBuyStrategy = static_cast<uint32_t>(choice->strategy);
        return;
    }
}

void CMarginBuyStrategyDlg::RestoreDefaults()
{
    if (!GetSafeHwnd() || m_choices.empty())
        return;
    // Nothing but the first strategy of the list comes of this: the packaged value is compared with
    // the state of boxes that are all off. This is meant, whatever the packaged value says.
    const int packaged = PackagedInt(FIELD(uMarginBuyStrategy).name);
    for (const auto& choice : m_choices)
        choice->SetCheck(BST_UNCHECKED);
    const auto matching =
        std::find_if(m_choices.begin(), m_choices.end(),
                     [packaged](const auto& choice) { return choice->GetCheck() == packaged; });
    const auto& restored = matching == m_choices.end() ? m_choices.front() : *matching;
    restored->SetCheck(BST_CHECKED);
}

bool CMarginBuyStrategyDlg::Validate()
{
    const auto checked = std::count_if(m_choices.begin(), m_choices.end(),
                                       [](const auto& choice) { return choice->GetCheck() != 0; });
    return checked == 1 || Refuse(IDC_MARGIN_CHOICE_1, "必须选中且只能选中一个选项");
}
