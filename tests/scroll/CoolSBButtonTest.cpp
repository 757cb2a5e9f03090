// Buttons inserted at the ends of a bar.
#include "tests/scroll/ScrollTestWindow.h"

#include <algorithm>

namespace
{

using Codes = std::vector<int>;

CoolSBButton Button(UINT placement, UINT type, UINT id, int size)
{
    CoolSBButton button = {};
    button.mask = kCoolSBHasAll;
    button.placement = placement;
    button.type = type;
    button.id = id;
    button.size = size;
    button.defaultSize = size;
    button.minSize = 10;
    button.maxSize = 100;
    return button;
}

/// A horizontal bar of 300 pixels with a push button of 20 before it and a toggle of 30 after it.
class ButtonTest : public ScrollTest
{
protected:
    void SetUp() override
    {
        ScrollTest::SetUp();
        ShowBars(true, false);
        Insert(0, Button(kButtonBefore, kCoolSBPush, 501, 20));
        Insert(1, Button(kButtonAfter, kCoolSBToggle, 502, 30));
        Pump(0);
        draws.clear();
    }

    void Insert(int index, const CoolSBButton& button)
    {
        ASSERT_TRUE(CoolSB_InsertButton(pane, SB_HORZ, index, &button));
    }

    CoolSBButton Get(int index) const
    {
        CoolSBButton button = {};
        EXPECT_TRUE(CoolSB_GetButton(pane, SB_HORZ, index, &button));
        return button;
    }

    ScrollPart Hit(int along) const { return HitBar(pane, SB_HORZ, On(SB_HORZ, along)); }

    COLORREF At(int x, int y) const { return PixelOf(pane, x, y); }
};

TEST_F(ButtonTest, ButtonsTakeTheirRoomFromTheEnds)
{
    EXPECT_EQ(Hit(0), kPartButton);
    EXPECT_EQ(Hit(19), kPartButton);
    EXPECT_EQ(Hit(20), kPartArrowBack);
    EXPECT_EQ(Hit(269), kPartArrowForward);
    EXPECT_EQ(Hit(270), kPartButton);
    EXPECT_EQ(GetCoolSBWindow(pane)->horz.sizeBefore, 20);
    EXPECT_EQ(GetCoolSBWindow(pane)->horz.sizeAfter, 30);
}

TEST_F(ButtonTest, ClickNotifiesAtThePressAndCommandsAtTheRelease)
{
    PressOn(SB_HORZ, 10);
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0].code, static_cast<UINT>(NM_CLICK));
    EXPECT_EQ(clicks[0].hwndFrom, pane);
    EXPECT_EQ(clicks[0].idFrom, 501u);
    EXPECT_EQ(GetCapture(), pane);
    EXPECT_EQ(coolSBTracking.hover.hoverTimer, 0u) << "nothing is hot during the press";
    EXPECT_EQ(commands.size(), 0u);
    EXPECT_EQ(TakeCodes(), Codes{});
    ReleaseMouse();
    EXPECT_EQ(commands, std::vector<WPARAM>{MAKEWPARAM(501, 1)});
    EXPECT_EQ(TakeCodes(), Codes{SB_ENDSCROLL});
    EXPECT_NE(GetCapture(), pane);
}

TEST_F(ButtonTest, ReleaseOffTheButtonCommandsNothing)
{
    PressOn(SB_HORZ, 10);
    EXPECT_EQ(coolSBTracking.press.pressedPart, kPartButton);
    MoveTo(SB_HORZ, 280);
    EXPECT_EQ(coolSBTracking.press.pressedPart, kPartNone) << "another button is off it, too";
    MoveTo(SB_HORZ, 12);
    EXPECT_EQ(coolSBTracking.press.pressedPart, kPartButton);
    MoveMouse({200, 150});
    ReleaseMouse();
    EXPECT_EQ(commands.size(), 0u);
    EXPECT_EQ(coolSBTracking.press.pressedButton, -1);
}

TEST_F(ButtonTest, ToggleFlipsItsState)
{
    PressOn(SB_HORZ, 280);
    ReleaseMouse();
    EXPECT_NE(Get(1).state, 0u);
    EXPECT_EQ(commands, std::vector<WPARAM>{MAKEWPARAM(502, 1)});
    PressOn(SB_HORZ, 280);
    MoveMouse({200, 150});
    ReleaseMouse();
    EXPECT_NE(Get(1).state, 0u) << "released off it";
    PressOn(SB_HORZ, 280);
    ReleaseMouse();
    EXPECT_EQ(Get(1).state, 0u);
    EXPECT_EQ(Get(0).state, 0u);
    PressOn(SB_HORZ, 10);
    ReleaseMouse();
    EXPECT_EQ(Get(0).state, 0u) << "a push button has no state";
}

TEST_F(ButtonTest, PressedButtonAndPressedToggleLookSunken)
{
    MoveMouse({200, 150});
    const COLORREF raised = At(1, 185);
    const COLORREF raisedToggle = At(271, 185);
    PressOn(SB_HORZ, 10);
    EXPECT_NE(At(1, 185), raised);
    MoveMouse({200, 150});
    EXPECT_EQ(At(1, 185), raised);
    ReleaseMouse();
    CoolSBButton pressed = {};
    pressed.mask = kCoolSBHasState;
    pressed.state = 1;
    EXPECT_TRUE(CoolSB_ModifyButton(pane, SB_HORZ, 1, &pressed));
    Pump();
    EXPECT_NE(At(271, 185), raisedToggle);
    EXPECT_EQ(Get(1).id, 502u) << "the other fields stay";
}

TEST_F(ButtonTest, BlanksAreFilled)
{
    Insert(2, Button(kButtonAfter, kCoolSBFaceBlank, 503, 20));
    Insert(3, Button(kButtonAfter, kCoolSBShadowBlank, 504, 20));
    Insert(4, Button(kButtonAfter, kCoolSBRaisedBlank, 505, 20));
    Pump();
    // 30, 20, 20 and 20 pixels to the end.
    EXPECT_EQ(At(241, 185), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(At(259, 199), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(At(260, 184), GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(At(279, 199), GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(At(290, 190), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(At(299, 199), GetSysColor(COLOR_3DDKSHADOW)) << "its edge";
}

TEST_F(ButtonTest, OwnerDrawnButtonIsDrawnByTheParent)
{
    Insert(2, Button(kButtonAfter, kCoolSBOwnerDrawn, 503, 20));
    onDraw = [](const NMCoolSBCustomDraw& draw)
    {
        if (draw.item == 128)
            FillRect(draw.hdc, &draw.rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    };
    draws.clear();
    SendMessageA(pane, WM_NCPAINT, 1, 0);
    const auto drawn =
        std::find_if(draws.begin(), draws.end(),
                     [](const NMCoolSBCustomDraw& draw) { return draw.item == 128u; });
    ASSERT_NE(drawn, draws.end());
    EXPECT_EQ(drawn->hdr.idFrom, 503u);
    EXPECT_EQ(drawn->bar, static_cast<UINT>(SB_HORZ));
    const RECT place = {280, 184, 300, 200};
    EXPECT_TRUE(EqualRect(&drawn->rect, &place));
    EXPECT_EQ(At(290, 190), RGB(0, 0, 0));

    PressOn(SB_HORZ, 290);
    EXPECT_EQ(LastState(kPartButton, SB_HORZ), static_cast<UINT>(CDIS_SELECTED));
    ReleaseMouse();
    MoveMouse({200, 150});
    Pump(60);
    EXPECT_EQ(LastState(kPartButton, SB_HORZ), static_cast<UINT>(CDIS_DEFAULT));
    MoveTo(SB_HORZ, 290);
    Pump(60);
    EXPECT_EQ(LastState(kPartButton, SB_HORZ), static_cast<UINT>(CDIS_HOT));
}

TEST_F(ButtonTest, HotStyleRaisesTheButtonUnderTheMouseButNotTheToggleWithoutHotLook)
{
    CoolSB_SetStyle(pane, SB_BOTH, kCoolSBHot);
    Insert(2, Button(kButtonAfter, kCoolSBToggleNotHot, 503, 20));
    MoveMouse({200, 150});
    Pump(60);
    const COLORREF flat = At(10, 185);
    const COLORREF flatToggle = At(290, 185);
    MoveTo(SB_HORZ, 10);
    Pump(60);
    EXPECT_NE(At(19, 199), flat) << "a raised edge";
    MoveTo(SB_HORZ, 290);
    Pump(60);
    EXPECT_EQ(At(299, 199), flatToggle);
    EXPECT_EQ(At(19, 199), flat) << "the other one lies flat again";
}

TEST_F(ButtonTest, BitmapAndMetafileAreDrawnInTheMiddle)
{
    const HBITMAP black = CreateBitmap(4, 4, 1, 1, nullptr); // zeroes
    const HDC recorder = CreateEnhMetaFileA(nullptr, nullptr, nullptr, nullptr);
    const RECT dot = {0, 0, 40, 40};
    const HBRUSH green = CreateSolidBrush(RGB(0, 200, 0));
    FillRect(recorder, &dot, green);
    const HENHMETAFILE metafile = CloseEnhMetaFile(recorder);
    CoolSBButton picture = {};
    picture.mask = kCoolSBHasBitmap;
    picture.bitmap = black;
    CoolSB_ModifyButton(pane, SB_HORZ, 0, &picture);
    picture.mask = kCoolSBHasMetafile;
    picture.metafile = metafile;
    CoolSB_ModifyButton(pane, SB_HORZ, 1, &picture);
    Pump();
    EXPECT_EQ(At(10, 192), GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(At(4, 192), GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(At(285, 192), RGB(0, 200, 0));
    CoolSB_RemoveButton(pane, SB_HORZ, 0);
    CoolSB_RemoveButton(pane, SB_HORZ, 0);
    DeleteObject(black);
    DeleteObject(green);
    DeleteEnhMetaFile(metafile);
}

TEST_F(ButtonTest, CursorOfAButtonIsShownAboveIt)
{
    CoolSBButton shaped = {};
    shaped.mask = kCoolSBHasCursor;
    shaped.cursor = LoadCursor(nullptr, IDC_SIZEWE);
    CoolSB_ModifyButton(pane, SB_HORZ, 0, &shaped);
    MoveTo(SB_HORZ, 10);
    EXPECT_EQ(GetCursor(), LoadCursor(nullptr, IDC_SIZEWE));
    MoveTo(SB_HORZ, 100);
    EXPECT_NE(GetCursor(), LoadCursor(nullptr, IDC_SIZEWE));
}

TEST_F(ButtonTest, DraggableButtonFollowsTheMouse)
{
    CoolSBButton draggable = Button(kButtonBefore, kCoolSBPush | kCoolSBDraggable, 501, 20);
    CoolSB_ModifyButton(pane, SB_HORZ, 0, &draggable);
    PressOn(SB_HORZ, 15);
    MoveTo(SB_HORZ, 45);
    EXPECT_EQ(Get(0).size, 50);
    EXPECT_EQ(Hit(49), kPartButton);
    EXPECT_EQ(Hit(50), kPartArrowBack);
    MoveTo(SB_HORZ, 290);
    EXPECT_EQ(Get(0).size, 100) << "its greatest size";
    MoveMouse({20, On(SB_HORZ, 0).y});
    EXPECT_EQ(Get(0).size, 10) << "its least size";
    MoveTo(SB_HORZ, 25);
    ReleaseMouse();
    EXPECT_EQ(Get(0).size, 30);

    draggable.placement = kButtonAfter;
    CoolSB_ModifyButton(pane, SB_HORZ, 1, &draggable);
    Pump(0);
    PressOn(SB_HORZ, 290);
    MoveTo(SB_HORZ, 275);
    EXPECT_EQ(Get(1).size, 35) << "toward the bar's middle it grows";
    ReleaseMouse();
}

TEST_F(ButtonTest, DraggableButtonsLeaveTheBarFiftyPixels)
{
    CoolSBButton draggable = Button(kButtonBefore, kCoolSBPush | kCoolSBDraggable, 501, 90);
    CoolSB_ModifyButton(pane, SB_HORZ, 0, &draggable);
    EXPECT_EQ(Get(0).size, 90);
    SetWindowPos(pane, nullptr, 0, 0, 140, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Get(0).size, 60) << "140 less 30 less 50";
    SetWindowPos(pane, nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Get(0).size, 90);
}

TEST_F(ButtonTest, ButtonsWithoutRoomAreNotShown)
{
    SetWindowPos(pane, nullptr, 0, 0, 73, 200, SWP_NOMOVE | SWP_NOZORDER);
    Pump();
    EXPECT_TRUE(GetCoolSBWindow(pane)->horz.buttonsBeforeShown);
    EXPECT_FALSE(GetCoolSBWindow(pane)->horz.buttonsAfterShown) << "the bar needs 24 of 73 pixels";
    EXPECT_EQ(Hit(70), kPartArrowForward);
    SetWindowPos(pane, nullptr, 0, 0, 74, 200, SWP_NOMOVE | SWP_NOZORDER);
    Pump();
    EXPECT_TRUE(GetCoolSBWindow(pane)->horz.buttonsAfterShown);
    EXPECT_EQ(Hit(70), kPartButton);
}

TEST_F(ButtonTest, SeventeenthButtonIsRefused)
{
    for (int i = 2; i < 16; ++i)
        Insert(i, Button(kButtonBefore, kCoolSBPush, 600 + i, 1));
    const CoolSBButton more = Button(kButtonBefore, kCoolSBPush, 700, 1);
    EXPECT_FALSE(CoolSB_InsertButton(pane, SB_HORZ, 0, &more));
    EXPECT_TRUE(CoolSB_InsertButton(pane, SB_VERT, 0, &more)) << "the other bar has room";
    EXPECT_EQ(Get(15).id, 615u);
}

TEST_F(ButtonTest, IndicesOutOfRangeDoNothing)
{
    CoolSBButton button = Button(kButtonBefore, kCoolSBPush, 9, 10);
    for (const int index : {-1, 3, 16, 1000, -1000})
        EXPECT_FALSE(CoolSB_InsertButton(pane, SB_HORZ, index, &button)) << index;
    for (const int index : {-1, 2, 16, 1000, -1000})
    {
        EXPECT_FALSE(CoolSB_ModifyButton(pane, SB_HORZ, index, &button)) << index;
        EXPECT_FALSE(CoolSB_RemoveButton(pane, SB_HORZ, index)) << index;
        EXPECT_FALSE(CoolSB_GetButton(pane, SB_HORZ, index, &button)) << index;
    }
    EXPECT_FALSE(CoolSB_InsertButton(pane, SB_BOTH, 0, &button));
    EXPECT_FALSE(CoolSB_InsertButton(pane, SB_HORZ, 0, nullptr));
    EXPECT_FALSE(CoolSB_ModifyButton(pane, SB_HORZ, 0, nullptr));
    EXPECT_FALSE(CoolSB_GetButton(pane, SB_HORZ, 0, nullptr));
    button.placement = 3;
    EXPECT_FALSE(CoolSB_InsertButton(pane, SB_HORZ, 0, &button));
}

TEST_F(ButtonTest, ButtonsKeepTheirOrder)
{
    Insert(1, Button(kButtonBefore, kCoolSBPush, 503, 10));
    EXPECT_EQ(Get(0).id, 501u);
    EXPECT_EQ(Get(1).id, 503u);
    EXPECT_EQ(Get(2).id, 502u);
    EXPECT_TRUE(CoolSB_RemoveButton(pane, SB_HORZ, 0));
    EXPECT_EQ(Get(0).id, 503u);
    EXPECT_EQ(Get(1).id, 502u);
    EXPECT_EQ(GetCoolSBWindow(pane)->horz.sizeBefore, 10);
}

TEST_F(ButtonTest, AbsurdSizesStayWithinBounds)
{
    CoolSBButton absurd = Button(kButtonBefore, kCoolSBPush | kCoolSBDraggable, 9, 2000000000);
    absurd.minSize = -2000000000;
    absurd.maxSize = 2000000000;
    Insert(0, absurd);
    Insert(0, absurd);
    Pump();
    EXPECT_GE(Get(0).size, 0);
    EXPECT_LE(Get(0).size, 32767);
    PressOn(SB_HORZ, 10);
    MoveTo(SB_HORZ, 200);
    ReleaseMouse();
}

} // namespace
