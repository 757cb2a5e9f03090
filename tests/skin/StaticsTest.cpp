#include "skin/OwerDrawStatic.h"
#include "skin/Palette.h"
#include "skin/ScriptStatic.h"
#include "skin/SkinCache.h"
#include "tests/skin/KitWindow.h"
#include "tests/skin/LeftBehind.h"

namespace
{

constexpr UINT kOneLine = DT_VCENTER | DT_SINGLELINE;
constexpr DWORD kLabel = WS_CHILD | WS_VISIBLE | SS_NOTIFY;
constexpr COLORREF kInk = RGB(200, 0, 0);

constexpr COLORREF kPaper = RGB(255, 255, 255);

/// The rows of a label in which something stands, as top and bottom.
struct Rows
{
    int top = 0;
    int bottom = 0;

    int Count() const { return bottom - top; }
};

Rows InkedRows(HWND window, COLORREF back = kPaper)
{
    CRect client;
    GetClientRect(window, &client);
    Rows rows;
    for (int y = 0; y < client.bottom; ++y)
        for (int x = 0; x < client.right; ++x)
            if (PixelOf(window, x, y) != back)
                rows = {rows.Count() ? rows.top : y, y + 1};
    return rows;
}

bool HasPixel(HWND window, COLORREF color)
{
    CRect client;
    GetClientRect(window, &client);
    for (int y = 0; y < client.bottom; ++y)
        for (int x = 0; x < client.right; ++x)
            if (PixelOf(window, x, y) == color)
                return true;
    return false;
}

std::string TextOf(const CWnd& wnd)
{
    CString text;
    wnd.GetWindowText(text);
    return std::string(text);
}

struct OwerDrawStatic : testing::Test
{
    KitWindow parent;
    COwerDrawStatic label{"宋体", 16, 400, kInk, FALSE, kOneLine};
};

} // namespace

TEST_F(OwerDrawStatic, KeepsItsTextApartFromTheWindows)
{
    ASSERT_TRUE(label.Create("融资优先", kLabel, CRect(10, 10, 200, 30), &parent));
    EXPECT_EQ("融资优先", TextOf(label));
    EXPECT_EQ(0xffff, label.GetDlgCtrlID());
    label.SetWindowText("仅普通买入");
    EXPECT_EQ("仅普通买入", TextOf(label));
    EXPECT_EQ(10, label.GetWindowTextLength());
    label.SetWindowText("");
    EXPECT_EQ("", TextOf(label));
}

TEST_F(OwerDrawStatic, ANullTextIsAnEmptyOne)
{
    ASSERT_TRUE(label.Create(nullptr, kLabel, CRect(10, 10, 200, 30), &parent));
    EXPECT_EQ("", TextOf(label));
    label.SendMessage(WM_SETTEXT, 0, 0);
    EXPECT_EQ("", TextOf(label));
}

TEST_F(OwerDrawStatic, AShortBufferGetsWhatFitsAndNotHalfACharacter)
{
    ASSERT_TRUE(label.Create("a融资", kLabel, CRect(10, 10, 200, 30), &parent));
    char buffer[8];
    memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(3, label.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(buffer)));
    EXPECT_STREQ("a融", buffer);
    EXPECT_EQ('#', buffer[4]);
    EXPECT_EQ(1, label.SendMessage(WM_GETTEXT, 3, reinterpret_cast<LPARAM>(buffer)));
    EXPECT_STREQ("a", buffer);
    memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(0, label.SendMessage(WM_GETTEXT, 0, reinterpret_cast<LPARAM>(buffer)));
    EXPECT_EQ('#', buffer[0]);
}

TEST_F(OwerDrawStatic, TakesTheTextOfAWindowItIsAttachedTo)
{
    const HWND window = CreateWindowExA(0, "Static", "两融", kLabel, 10, 10, 100, 20, parent,
                                        nullptr, nullptr, nullptr);
    ASSERT_TRUE(label.SubclassWindow(window));
    EXPECT_EQ("两融", TextOf(label));
}

TEST_F(OwerDrawStatic, ANewTextHasTheParentDrawUnderIt)
{
    ASSERT_TRUE(label.Create("one", kLabel, CRect(10, 10, 200, 30), &parent));
    PumpFor(20);
    parent.ValidateRect(nullptr);
    label.SetWindowText("two");
    CRect stale;
    EXPECT_TRUE(parent.GetUpdateRect(&stale));
    EXPECT_EQ(CRect(10, 10, 200, 30), stale);
}

TEST_F(OwerDrawStatic, AnOldTextIsGoneFromTheScreen)
{
    ASSERT_TRUE(label.Create("■■■■", kLabel, CRect(10, 10, 200, 30), &parent));
    PumpFor(20);
    EXPECT_TRUE(HasPixel(label, kInk));
    label.SetWindowText("");
    PumpFor(20);
    EXPECT_EQ(0, InkedRows(label).Count());
}

TEST_F(OwerDrawStatic, TextThatFitsStandsInTheMiddle)
{
    ASSERT_TRUE(label.Create("■■", kLabel, CRect(10, 10, 60, 110), &parent));
    Paint(parent);
    const Rows rows = InkedRows(label);
    EXPECT_GT(rows.Count(), 0);
    EXPECT_NEAR(50, (rows.top + rows.bottom) / 2, 4);
}

TEST_F(OwerDrawStatic, TextThatIsTooWideWrapsAndGoesOnWrapping)
{
    ASSERT_TRUE(label.Create("优先下单融资剩余", kLabel, CRect(10, 10, 60, 110), &parent));
    Paint(parent);
    EXPECT_GT(InkedRows(label).Count(), 30);

    // In one line it would stand in the middle; wrapping it stands at the top.
    label.SetWindowText("■■");
    Paint(parent);
    EXPECT_GT(InkedRows(label).Count(), 0);
    EXPECT_LE(InkedRows(label).bottom, 20);
}

TEST_F(OwerDrawStatic, TheFontGrowsWithTheScale)
{
    ASSERT_TRUE(label.Create("■■■■", kLabel, CRect(10, 10, 300, 110), &parent));
    Paint(parent);
    const int atOne = InkedRows(label).Count();
    SetUIScale(2.0f);
    Paint(parent);
    const int atTwo = InkedRows(label).Count();
    SetUIScale(1.0f);
    EXPECT_GT(atOne, 6);
    EXPECT_NEAR(2 * atOne, atTwo, 2);
}

TEST_F(OwerDrawStatic, AnUnderlineIsDrawn)
{
    COwerDrawStatic plain("宋体", 16, 400, kInk, FALSE, DT_SINGLELINE);
    COwerDrawStatic underlined(&parent, "宋体", 16, 400, kInk, TRUE, DT_SINGLELINE);
    ASSERT_TRUE(plain.Create("nnnn", kLabel, CRect(10, 10, 100, 40), &parent));
    ASSERT_TRUE(underlined.Create("nnnn", kLabel, CRect(10, 50, 100, 80), &parent));
    Paint(parent);
    EXPECT_GT(InkedRows(plain).Count(), 0);
    EXPECT_GT(InkedRows(underlined).bottom, InkedRows(plain).bottom);
}

TEST_F(OwerDrawStatic, ShortConstructorsTakeASmallFace)
{
    COwerDrawStatic black(&parent, kOneLine);
    COwerDrawStatic coloured(kInk, kPageSheet, kOneLine);
    ASSERT_TRUE(black.Create("■■■■", kLabel, CRect(10, 10, 100, 40), &parent));
    ASSERT_TRUE(coloured.Create("■■■■", kLabel, CRect(10, 50, 100, 80), &parent));
    Paint(parent);
    EXPECT_TRUE(HasPixel(black, kBlackText));
    EXPECT_TRUE(HasPixel(coloured, kInk));
    EXPECT_LE(InkedRows(black).Count(), 12);
    EXPECT_EQ(InkedRows(black).Count(), InkedRows(coloured).Count());
}

TEST_F(OwerDrawStatic, ShowsTheHandWhileTheMouseIsOverIt)
{
    class WatchedLabel : public COwerDrawStatic
    {
    public:
        using COwerDrawStatic::COwerDrawStatic;
        int leaves = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            leaves += message == WM_MOUSELEAVE;
            return COwerDrawStatic::WindowProc(message, wParam, lParam);
        }
    };
    WatchedLabel watched(&parent, kOneLine);
    ASSERT_TRUE(watched.Create("link", kLabel, CRect(10, 10, 200, 30), &parent));
    for (int visit = 1; visit <= 2; ++visit)
    {
        MoveMouseTo(watched, 5, 5);
        MoveMouseTo(watched, 6, 6);
        EXPECT_TRUE(PumpUntil([] { return ::GetCursor() == ::LoadCursor(nullptr, IDC_HAND); }));
        MoveMouseTo(watched, 400, 300);
        EXPECT_TRUE(PumpUntil([&] { return watched.leaves == visit; }));
    }
}

TEST_F(OwerDrawStatic, ShowsTheArrowWhenTheMouseLeaves)
{
    ASSERT_TRUE(label.Create("link", kLabel, CRect(10, 10, 200, 30), &parent));
    label.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_HAND), ::GetCursor());
    label.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(::LoadCursor(nullptr, IDC_ARROW), ::GetCursor());
}

TEST_F(OwerDrawStatic, ColoursStaticControlsThatStandInIt)
{
    ASSERT_TRUE(label.Create("outer", kLabel, CRect(10, 10, 200, 30), &parent));
    const HWND inner = CreateWindowExA(0, "Static", "inner", WS_CHILD, 0, 0, 10, 10, label, nullptr,
                                       nullptr, nullptr);
    const HDC dc = GetDC(inner);
    const LRESULT brush = label.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                            reinterpret_cast<LPARAM>(inner));
    EXPECT_EQ(GetStockObject(NULL_BRUSH), reinterpret_cast<HGDIOBJ>(brush));
    EXPECT_EQ(TRANSPARENT, GetBkMode(dc));
    EXPECT_COLOR(kControlText, GetTextColor(dc));
    ReleaseDC(inner, dc);
}

TEST_F(OwerDrawStatic, AThousandLabelsLeaveNothingBehind)
{
    const auto makeOne = [&]
    {
        COwerDrawStatic one(&parent, "宋体", 16, 400, kInk, TRUE, kOneLine);
        ASSERT_TRUE(one.Create("label", kLabel, CRect(10, 10, 100, 40), &parent));
        CScriptStatic other;
        ASSERT_TRUE(other.Create("label", kLabel, CRect(10, 50, 100, 80), &parent));
        Paint(parent);
    };
    ExpectNothingLeftBehind(makeOne);
}

TEST(ScriptStatic, DrawsItsTextOnAFlatColour)
{
    KitWindow parent;
    CScriptStatic label;
    ASSERT_TRUE(label.Create("■■", kLabel, CRect(10, 10, 100, 50), &parent));
    Paint(label);
    EXPECT_COLOR(kScriptBack, PixelOf(label, 88, 1));
    EXPECT_COLOR(kScriptBack, PixelOf(label, 0, 39));
    EXPECT_TRUE(HasPixel(label, kBlackText));
    const Rows rows = InkedRows(label, kScriptBack);
    EXPECT_NEAR(20, (rows.top + rows.bottom) / 2, 4);
}

TEST(ScriptStatic, UsesTheFontOfItsParent)
{
    class FontedWindow : public KitWindow
    {
    public:
        HFONT font = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_GETFONT ? reinterpret_cast<LRESULT>(font)
                                         : KitWindow::WindowProc(message, wParam, lParam);
        }
    };
    FontedWindow parent;
    CScriptStatic label;
    ASSERT_TRUE(label.Create("■■", kLabel, CRect(10, 10, 200, 90), &parent));
    parent.font = GetCachedFont("宋体", -16, 400);
    Paint(label);
    const int small = InkedRows(label, kScriptBack).Count();
    parent.font = GetCachedFont("宋体", -48, 400);
    Paint(label);
    EXPECT_GT(small, 6);
    EXPECT_NEAR(3 * small, InkedRows(label, kScriptBack).Count(), 3);
}
