#include "tests/mfc/GdiCount.h"
#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestDlg.h"
#include "tests/skin/WindowPixels.h"

#include "skin/ColorButton.h"
#include "skin/Palette.h"

#include <gtest/gtest.h>

namespace
{

constexpr LPARAM kInside = MAKELPARAM(5, 5);

/// Lets the tests see the state.
template <typename Button>
class CSeenButton : public Button
{
public:
    using Button::state;
    using Button::tracking;
};

template <typename Button>
class DrawnButton : public testing::Test
{
protected:
    DrawnButton()
    {
        button.SubclassWindow(dialog.Item(kTestId));
        button.Invalidate();
    }

    void Send(UINT message, LPARAM lParam = 0) { button.SendMessage(message, 0, lParam); }

    /// A pixel of the face where no caption is.
    COLORREF Face(int y) const { return PixelAt(button.m_hWnd, 3, y); }
    COLORREF Face() const { return Face(ClientOf(button.m_hWnd).bottom / 2); }

    int Clicks() const { return dialog.CountCommands(kTestId, BN_CLICKED); }

    CTestDlg dialog{{{"Button", kSolidText, kShown, kTestId}, {"Edit", "", kShown, 200, 10, 60}}};
    CSeenButton<Button> button;
};

class BlackButton : public DrawnButton<CBlackButton>
{
};

class ColorButton : public DrawnButton<CColorButton>
{
protected:
    ColorButton()
    {
        button.SetBackColors(kNormal, kHover, kPressed);
        button.SetTextColors(kNormalText, kPressedText, kHoverText);
    }

    int TextPixels(COLORREF color) const
    {
        return CountPixels(button.m_hWnd, ClientOf(button.m_hWnd), color);
    }

    static constexpr COLORREF kNormal = RGB(10, 20, 30);
    static constexpr COLORREF kHover = RGB(40, 50, 60);
    static constexpr COLORREF kPressed = RGB(70, 80, 90);
    static constexpr COLORREF kNormalText = RGB(255, 1, 1);
    static constexpr COLORREF kPressedText = RGB(1, 255, 1);
    static constexpr COLORREF kHoverText = RGB(1, 1, 255);
};

} // namespace

TEST_F(BlackButton, BecomesOwnerDrawn)
{
    EXPECT_EQ(static_cast<DWORD>(BS_OWNERDRAW), button.GetStyle() & 0xF);
}

TEST_F(ColorButton, StatesFollowTheMouse)
{
    EXPECT_EQ(ButtonState::Normal, button.state);
    Send(WM_MOUSEMOVE, kInside);
    EXPECT_EQ(ButtonState::Hover, button.state);
    EXPECT_TRUE(button.tracking);
    Send(WM_LBUTTONDOWN, kInside);
    EXPECT_EQ(ButtonState::Pressed, button.state);
    Send(WM_MOUSEMOVE, kInside);
    EXPECT_EQ(ButtonState::Pressed, button.state) << "no fresh enter while the mouse is tracked";
    Send(WM_LBUTTONUP, kInside);
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(ButtonState::Normal, button.state);
    Send(WM_MOUSEMOVE, kInside);
    EXPECT_EQ(ButtonState::Normal, button.state) << "hover needs a fresh enter";
    Send(WM_MOUSELEAVE);
    EXPECT_FALSE(button.tracking);
    Send(WM_MOUSEMOVE, kInside);
    EXPECT_EQ(ButtonState::Hover, button.state);
    Send(WM_MOUSELEAVE);
    EXPECT_EQ(ButtonState::Normal, button.state);
}

TEST_F(BlackButton, ALeaveWithoutAnEnterDoesNothing)
{
    Send(WM_LBUTTONDOWN, kInside);
    Send(WM_MOUSELEAVE);
    EXPECT_EQ(ButtonState::Pressed, button.state);
    Send(WM_LBUTTONUP, kInside);
}

TEST_F(BlackButton, LosingTheFocusResets)
{
    Send(WM_LBUTTONDOWN, kInside);
    EXPECT_EQ(button.m_hWnd, GetFocus());
    SetFocus(dialog.Item(200));
    EXPECT_EQ(ButtonState::Normal, button.state);
    Send(WM_LBUTTONUP, MAKELPARAM(-100, 0));
    EXPECT_EQ(0, Clicks());
}

TEST_F(ColorButton, AReleaseOutsideDoesNotFire)
{
    Send(WM_LBUTTONDOWN, kInside);
    Send(WM_LBUTTONUP, MAKELPARAM(-10, 5));
    EXPECT_EQ(0, Clicks());
    EXPECT_EQ(ButtonState::Normal, button.state);
}

TEST_F(BlackButton, ADoubleClickPressesTwice)
{
    Send(WM_LBUTTONDOWN, kInside);
    Send(WM_LBUTTONUP, kInside);
    Send(WM_LBUTTONDBLCLK, kInside);
    EXPECT_EQ(ButtonState::Pressed, button.state);
    Send(WM_LBUTTONUP, kInside);
    EXPECT_EQ(2, Clicks());
    EXPECT_EQ(0, dialog.CountCommands(kTestId, BN_DOUBLECLICKED));
}

TEST_F(BlackButton, TheDisabledLookNeverFires)
{
    button.SetEnabledLook(true);
    EXPECT_EQ(ButtonState::Disabled, button.state);
    EXPECT_TRUE(button.IsWindowEnabled());
    SetFocus(dialog.Item(200));
    Send(WM_MOUSEMOVE, kInside);
    Send(WM_LBUTTONDOWN, kInside);
    EXPECT_EQ(GetDlgItem(dialog.m_hWnd, 200), GetFocus()) << "not even the default ran";
    EXPECT_EQ(nullptr, GetCapture());
    Send(WM_LBUTTONUP, kInside);
    Send(WM_LBUTTONDBLCLK, kInside);
    Send(WM_LBUTTONUP, kInside);
    Send(WM_MOUSELEAVE);
    button.SetFocus();
    button.UpdateWindow();
    TypeKey(dialog.m_hWnd, VK_SPACE);
    TypeKey(dialog.m_hWnd, VK_RETURN);
    SetFocus(dialog.Item(200));
    EXPECT_EQ(ButtonState::Disabled, button.state);
    EXPECT_EQ(0, Clicks());

    button.SetEnabledLook(false);
    EXPECT_EQ(ButtonState::Normal, button.state);
    Send(WM_LBUTTONDOWN, kInside);
    Send(WM_LBUTTONUP, kInside);
    EXPECT_EQ(1, Clicks());
}

TEST_F(BlackButton, ReturnAndSpacePressIt)
{
    button.SetFocus();
    TypeKey(dialog.m_hWnd, VK_SPACE);
    EXPECT_EQ(1, Clicks());
    TypeKey(dialog.m_hWnd, VK_RETURN);
    EXPECT_EQ(2, Clicks());
    EXPECT_EQ(0, dialog.CountCommands(IDOK, BN_CLICKED));
}

TEST_F(BlackButton, TabReachesIt)
{
    SetFocus(dialog.Item(200));
    TypeKey(dialog.m_hWnd, VK_TAB);
    EXPECT_EQ(button.m_hWnd, GetFocus());
    TypeKey(dialog.m_hWnd, VK_TAB);
    EXPECT_EQ(dialog.Item(200), GetFocus());
    EXPECT_EQ(static_cast<DWORD>(BS_OWNERDRAW), button.GetStyle() & 0xF);
}

TEST_F(BlackButton, GradientRunsFromTopToBottom)
{
    const COLORREF top = RGB(0, 0, 0);
    const COLORREF bottom = RGB(200, 100, 50);
    button.SetGradient(top, bottom, bottom, top, RGB(9, 9, 9), RGB(9, 9, 9));
    const int height = ClientOf(button.m_hWnd).bottom;
    const auto rising = [this, height](int from, int to)
    {
        return GetRValue(Face(from)) < GetRValue(Face(to)) &&
               GetGValue(Face(from)) < GetGValue(Face(to));
    };
    EXPECT_TRUE(rising(1, height / 2));
    EXPECT_TRUE(rising(height / 2, height - 2));
    EXPECT_LT(GetRValue(Face(1)), 200 * 3 / height);
    EXPECT_GT(GetRValue(Face(height - 2)), 200 - 200 * 3 / height);
    EXPECT_EQ(Face(height / 2),
              PixelAt(button.m_hWnd, ClientOf(button.m_hWnd).right - 4, height / 2));

    Send(WM_LBUTTONDOWN, kInside);
    EXPECT_TRUE(rising(height - 2, 1));
    Send(WM_LBUTTONUP, MAKELPARAM(-1, -1));

    button.EnableWindow(FALSE);
    EXPECT_EQ(RGB(9, 9, 9), Face());
    EXPECT_EQ(ButtonState::Normal, button.state) << "the forced look is not kept";
}

TEST_F(BlackButton, StartsDark)
{
    const int height = ClientOf(button.m_hWnd).bottom;
    EXPECT_NEAR(56, GetRValue(Face(1)), 3);
    EXPECT_NEAR(26, GetRValue(Face(height - 2)), 3);
}

TEST_F(BlackButton, HasAnEdge)
{
    const RECT client = ClientOf(button.m_hWnd);
    EXPECT_EQ(kDarkButtonEdge, PixelAt(button.m_hWnd, 0, 0));
    EXPECT_EQ(kDarkButtonEdge, PixelAt(button.m_hWnd, client.right - 1, client.bottom - 1));
    EXPECT_NE(kDarkButtonEdge, PixelAt(button.m_hWnd, 1, 1));
}

TEST_F(BlackButton, CaptionStandsOutFromTheFace)
{
    const COLORREF grey = RGB(128, 128, 128);
    button.SetGradient(grey, grey, grey, grey, grey, grey);
    const RECT client = ClientOf(button.m_hWnd);
    EXPECT_GT(CountPixels(button.m_hWnd, client, RGB(38, 38, 38)), 0);
    button.SetCaptionColor(RGB(255, 0, 0));
    EXPECT_GT(CountPixels(button.m_hWnd, client, RGB(255, 0, 0)), 0);
    EXPECT_EQ(0, CountPixels(button.m_hWnd, client, RGB(38, 38, 38)));
    button.EnableWindow(FALSE);
    EXPECT_GT(CountPixels(button.m_hWnd, client, kDarkButtonDisabledText), 0);
}

TEST_F(BlackButton, TheFocusTurnsANormalLookIntoHover)
{
    button.SetFocus();
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_EQ(ButtonState::Hover, button.state);
    Send(WM_LBUTTONDOWN, kInside);
    button.UpdateWindow();
    EXPECT_EQ(ButtonState::Pressed, button.state);
    Send(WM_LBUTTONUP, kInside);
    EXPECT_EQ(1, Clicks());
}

TEST_F(BlackButton, DrawsThroughItsVirtualOperations)
{
    class COwnButton : public CBlackButton
    {
    public:
        void DrawButtonFace(HDC) override { calls += "face "; }
        void DrawCaption(HDC, int x, int y, const char* caption, COLORREF) override
        {
            calls += std::string(caption) + " " + std::to_string(x) + "," + std::to_string(y);
        }
        std::string calls;
    };
    COwnButton own;
    own.SubclassWindow(button.UnsubclassWindow());
    own.Invalidate();
    own.UpdateWindow();
    const RECT client = ClientOf(own.m_hWnd);
    EXPECT_EQ(std::string("face ") + kSolidText + " " + std::to_string(client.right / 2) + "," +
                  std::to_string(client.bottom / 2),
              own.calls);
    button.Attach(own.UnsubclassWindow());
}

TEST_F(ColorButton, ShowsTheColorsOfEachState)
{
    EXPECT_EQ(kNormal, Face());
    EXPECT_EQ(kNormal, PixelAt(button.m_hWnd, 0, 0)) << "no edge";
    EXPECT_GT(TextPixels(kNormalText), 0);

    Send(WM_MOUSEMOVE, kInside);
    EXPECT_EQ(kHover, Face());
    EXPECT_GT(TextPixels(kHoverText), 0);
    EXPECT_EQ(0, TextPixels(kNormalText));

    Send(WM_LBUTTONDOWN, kInside);
    EXPECT_EQ(kPressed, Face());
    EXPECT_GT(TextPixels(kPressedText), 0);

    Send(WM_LBUTTONUP, kInside);
    EXPECT_EQ(kNormal, Face());
    EXPECT_EQ(1, Clicks());

    button.SetEnabledLook(true);
    EXPECT_EQ(kNormal, Face());
}

TEST_F(ColorButton, AnUndecidedOneHasItsOwnBack)
{
    class CUndecided : public CColorButton
    {
    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == BM_GETSTATE ? BST_INDETERMINATE
                                          : CColorButton::WindowProc(message, wParam, lParam);
        }
    };
    CUndecided own;
    own.SubclassWindow(button.UnsubclassWindow());
    own.Invalidate();
    EXPECT_EQ(kUndecidedButton, PixelAt(own.m_hWnd, 3, 3));
    button.Attach(own.UnsubclassWindow());
}

TEST_F(ColorButton, TextIsCentred)
{
    const RECT client = ClientOf(button.m_hWnd);
    int left = 0;
    int right = client.right - 1;
    const auto isBlank = [this, &client](int x)
    {
        return CountPixels(button.m_hWnd, {x, 0, x + 1, client.bottom}, kNormal) == client.bottom;
    };
    while (isBlank(left))
        ++left;
    while (isBlank(right))
        --right;
    EXPECT_NEAR(left, client.right - 1 - right, 2);
}

TEST_F(ColorButton, AFaceOfOnesOwnChangesTheText)
{
    const int before = TextPixels(kNormalText);
    button.SetFace("黑体", 30, 700);
    const int after = TextPixels(kNormalText);
    EXPECT_GT(after, before);
    button.SetFace("", 30, 700);
    EXPECT_EQ(before, TextPixels(kNormalText));
    button.SetFace("a face name that is far longer than any face name may be", 12, 400);
    EXPECT_EQ(kNormal, Face());
}

TEST_F(ColorButton, AFaceOfOnesOwnLeavesNoFontBehind)
{
    button.SetFace("黑体", 30, 700);
    button.UpdateWindow();
    const int before = CountGdiObjects();
    for (int i = 0; i < 100; ++i)
        button.RedrawWindow();
    EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(ColorButton, ACaptionIsCutAtSixtyThreeBytes)
{
    constexpr int kWide = 900; // shows more than the limit
    dialog.SetWindowPos(nullptr, 0, 0, kWide + 50, 200, SWP_NOZORDER);
    button.MoveWindow(10, 10, kWide, 40);
    const auto shown = [this](const std::string& caption)
    {
        button.SetWindowText(caption.c_str());
        return PixelsOf(button);
    };
    const std::string whole(63, 'x');
    EXPECT_FALSE(shown(std::string(62, 'x')) == shown(whole));
    EXPECT_TRUE(shown(whole) == shown(whole + "x"));
    EXPECT_TRUE(shown(whole) == shown(std::string(500, 'x')));
    // The last character would end one byte behind the limit: none of it is left.
    const std::string most(61, 'x');
    EXPECT_TRUE(shown(most + "我") == shown(most + "我我"));
    EXPECT_TRUE(shown(most + "x") == shown(most + "x我"));
}

TEST(ColorButtonNew, HasTheColorsOfOk)
{
    CTestDlg dialog({{"Button", "", kShown, kTestId}});
    CColorButton button;
    button.SubclassWindow(dialog.Item(kTestId));
    button.Invalidate();
    EXPECT_EQ(kOkButton, PixelAt(button.m_hWnd, 2, 2));
}
