// The gallery's right third: numeric fields, tab strips, labels and the tool tip.
#include "tools/gallery/GalleryDlg.h"

#include "skin/MyRichEdit.h"
#include "skin/MyTabCtrl.h"
#include "skin/NumEdit.h"
#include "skin/OwerDrawStatic.h"
#include "skin/Palette.h"
#include "skin/ScriptStatic.h"
#include "skin/SkinCache.h"

namespace
{

constexpr int kLeft = 720;
constexpr DWORD kShown = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kLabel = WS_CHILD | WS_VISIBLE | SS_NOTIFY;

CRect ScaledRect(int x, int y, int width, int height)
{
    return CRect(CPoint(Scaled(x), Scaled(y)), CSize(Scaled(width), Scaled(height)));
}

/// Presses an arrow of the field and leaves it pressed.
void HoldArrow(CMyRichEdit_MyCtrl& edit, SpinButton arrow)
{
    CRect client;
    edit.GetClientRect(&client);
    edit.SpinClick(CPoint(client.right, arrow == SpinButton::kUp ? 0 : client.bottom - 1));
}

} // namespace

void CGalleryDlg::AddFields()
{
    AddTitle("数字输入", kLeft, 40);
    const auto add = [this](const char* label, const char* text, int column,
                            int row) -> CMyRichEdit_MyCtrl&
    {
        const int x = kLeft + column * 226;
        const int y = 76 + row * 38;
        AddLabel(label, x, y);
        auto& edit = Keep<CMyRichEdit_MyCtrl>(
            Add("RichEdit20A", "", kShown | WS_BORDER | ES_AUTOHSCROLL, x + 76, y, 120, 26));
        edit.SetBackColor(kFieldBack);
        edit.SetTextColor(kControlText);
        edit.CenterTextVertically();
        edit.SetWindowText(text);
        return edit;
    };
    add("常态", "12.50", 0, 0).EnableSpin();
    CMyRichEdit_MyCtrl& disabled = add("不可用", "30", 0, 1);
    disabled.EnableSpin();
    disabled.EnableWindow(FALSE);
    add("无箭头", "IF2406", 0, 2);
    CMyRichEdit_MyCtrl& up = add("上箭头", "4", 1, 0);
    up.EnableSpin();
    HoldArrow(up, SpinButton::kUp);
    CMyRichEdit_MyCtrl& down = add("下箭头", "9999999", 1, 1);
    down.EnableSpin();
    HoldArrow(down, SpinButton::kDown);
    AddLabel("数字编辑", kLeft + 226, 152);
    Keep<CNumEdit>(
        Add("Edit", "0.618", kShown | WS_BORDER | ES_AUTOHSCROLL, kLeft + 302, 152, 120, 26));
}

void CGalleryDlg::AddTabStrips()
{
    AddTitle("标签页", kLeft, 220);
    const auto add = [this](int y, const CMyTabCtrl_MyCtrl::Look& look)
    {
        auto strip = std::make_unique<CMyTabCtrl_MyCtrl>();
        strip->Create(y, this);
        strip->MoveWindow(ScaledRect(kLeft, y, 440, 40));
        strip->SetLook(look);
        for (const char* title : {"常规", "自动追价", "止盈止损", "自动拆单"})
            strip->AddItem(title, Scaled(100), kAccent, kListText);
        strip->SetCurSel(1);
        kept.push_back(std::move(strip));
    };
    CMyTabCtrl_MyCtrl::Look look;
    add(256, look);
    look.backColor = kPageSurround;
    look.lineColor = kThinFrame;
    look.barAtTop = true;
    add(306, look);
    look.boxed = false;
    look.lineColor = kListText;
    add(356, look);
}

void CGalleryDlg::AddTexts()
{
    AddTitle("文字", kLeft, 420);
    const auto add = [this](const char* text, int y, int width, int height, COLORREF color,
                            BOOL underline, UINT format)
    {
        auto label = std::make_unique<COwerDrawStatic>("黑体", 16, 400, color, underline, format);
        label->Create(text, kLabel, ScaledRect(kLeft, y, width, height), this);
        kept.push_back(std::move(label));
    };
    add("查看说明", 456, 100, 26, kAccent, TRUE, DT_VCENTER | DT_SINGLELINE);
    add("融资优先：优先下单融资，剩余数量（买入数量 - 最大可融资数量）下单担保品买入", 490, 440, 44,
        kControlText, FALSE, DT_VCENTER | DT_SINGLELINE);
    auto script = std::make_unique<CScriptStatic>();
    script->Create("脚本文字", kLabel, ScaledRect(kLeft + 160, 456, 120, 26), this);
    kept.push_back(std::move(script));

    AddTitle("提示", kLeft, 590);
    tip.Create(this);
}

void CGalleryDlg::ShowTip()
{
    CPoint place(Scaled(kLeft), Scaled(606));
    ClientToScreen(&place);
    tip.ShowAt("追价时间间隔：5 到 30 秒\r\n\r\n重复次数：1 到 10 次\r\n", &place, 0);
}
