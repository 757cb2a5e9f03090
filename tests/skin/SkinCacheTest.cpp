#include "tests/core/TempWorkingFolder.h"
#include "tests/skin/SkinTestSupport.h"
#include "tests/skin/TestBitmap.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr int kFontSlots = 2048;

/// The scale while a test runs.
class CScale
{
public:
    explicit CScale(float scale)
        : former(GetUIScale())
    {
        SetUIScale(scale);
    }
    ~CScale() { SetUIScale(former); }

private:
    float former;
};

class SkinFile : public TempWorkingFolder
{
};

} // namespace

TEST(SkinCache, OneBrushAColor)
{
    const HBRUSH brush = GetCachedBrush(RGB(1, 2, 3));
    ASSERT_NE(nullptr, brush);
    EXPECT_EQ(brush, GetCachedBrush(RGB(1, 2, 3)));
    EXPECT_NE(brush, GetCachedBrush(RGB(3, 2, 1)));
    LOGBRUSH facts{};
    GetObjectA(brush, sizeof(facts), &facts);
    EXPECT_EQ(RGB(1, 2, 3), facts.lbColor);
}

TEST(SkinCache, OnePenAWidthColorAndStyle)
{
    const HPEN pen = GetCachedPen(2, RGB(9, 8, 7), PS_SOLID);
    ASSERT_NE(nullptr, pen);
    EXPECT_EQ(pen, GetCachedPen(2, RGB(9, 8, 7), PS_SOLID));
    EXPECT_NE(pen, GetCachedPen(3, RGB(9, 8, 7), PS_SOLID));
    EXPECT_NE(pen, GetCachedPen(2, RGB(9, 8, 8), PS_SOLID));
    EXPECT_NE(pen, GetCachedPen(2, RGB(9, 8, 7), PS_INSIDEFRAME));
    LOGPEN facts{};
    GetObjectA(GetCachedPen(1, RGB(4, 5, 6), PS_DOT), sizeof(facts), &facts);
    EXPECT_EQ(1, facts.lopnWidth.x);
    EXPECT_EQ(RGB(4, 5, 6), facts.lopnColor);
    EXPECT_EQ(static_cast<UINT>(PS_DOT), facts.lopnStyle);
}

TEST(SkinCache, OneFontAFaceHeightAndWeight)
{
    const HFONT font = GetCachedFont("黑体", 17, 500);
    ASSERT_NE(nullptr, font);
    EXPECT_EQ(font, GetCachedFont("黑体", 17, 500));
    EXPECT_NE(font, GetCachedFont("黑体", 17, 700));
    EXPECT_NE(font, GetCachedFont("黑体", 18, 500));
    EXPECT_NE(font, GetCachedFont("宋体", 17, 500));

    const int slot = GetCachedFontSlot("黑体", 17, 500);
    EXPECT_EQ(slot, GetCachedFontSlot("黑体", 17, 500));
    EXPECT_NE(slot, GetCachedFontSlot("黑体", 17, 700));
    EXPECT_EQ(font, GetCachedFontBySlot(slot));

    LOGFONTA facts{};
    GetObjectA(font, sizeof(facts), &facts);
    EXPECT_STREQ("黑体", facts.lfFaceName);
    EXPECT_EQ(17, facts.lfHeight);
    EXPECT_EQ(500, facts.lfWeight);
    EXPECT_EQ(DEFAULT_CHARSET, facts.lfCharSet);
    EXPECT_EQ(FF_SWISS, facts.lfPitchAndFamily);
}

TEST(SkinCache, SlotsThatWereNeverGivenOutHoldNothing)
{
    EXPECT_EQ(nullptr, GetCachedFontBySlot(-1));
    EXPECT_EQ(nullptr, GetCachedFontBySlot(kFontSlots - 1));
    EXPECT_EQ(nullptr, GetCachedFontBySlot(kFontSlots));
}

TEST(SkinCache, AFaceOfAnyLengthIsNoDanger)
{
    const std::string face(1000, 'f');
    const int slot = GetCachedFontSlot(face.c_str(), 12, 400);
    EXPECT_GE(slot, 0);
    EXPECT_EQ(slot, GetCachedFontSlot(face.c_str(), 12, 400));
}

// Fills the table for good: run in a process of its own.
TEST(FontTable, RefusesTheSlotBehindTheLast)
{
    for (int height = 0; height < kFontSlots; ++height)
        ASSERT_EQ(height, GetCachedFontSlot("Tahoma", height, 400));
    EXPECT_EQ(-1, GetCachedFontSlot("Tahoma", kFontSlots, 400));
    EXPECT_EQ(nullptr, GetCachedFont("Tahoma", kFontSlots, 400));
    EXPECT_EQ(7, GetCachedFontSlot("Tahoma", 7, 400));
    EXPECT_NE(nullptr, GetCachedFontBySlot(kFontSlots - 1));
}

TEST(SkinCache, OneMemoryContextForAll)
{
    const HDC screen = GetDC(nullptr);
    const HDC memory = GetSharedMemDC(screen);
    ReleaseDC(nullptr, screen);
    ASSERT_NE(nullptr, memory);
    EXPECT_EQ(memory, GetSharedMemDC(nullptr));
}

TEST_F(SkinFile, IsLoadedOnceItIsThere)
{
    EXPECT_EQ(nullptr, GetSkinBitmap(".\\late.bmp"));
    WriteBytes("late.bmp", "no bitmap");
    EXPECT_EQ(nullptr, GetSkinBitmap(".\\late.bmp"));
    WriteBytes("late.bmp", FlatBitmap(2, 5, 7, {RGB(1, 2, 3), RGB(4, 5, 6)}));
    const HBITMAP bitmap = GetSkinBitmap(".\\late.bmp");
    ASSERT_NE(nullptr, bitmap);
    const SIZE size = GetBitmapSize(bitmap);
    EXPECT_EQ(10, size.cx);
    EXPECT_EQ(7, size.cy);

    DeleteFileA("late.bmp");
    EXPECT_EQ(bitmap, GetSkinBitmap(".\\late.bmp"));
}

TEST_F(SkinFile, OfOnesOwnIsAnother)
{
    WriteBytes("own.bmp", FlatBitmap(1, 2, 2, {RGB(1, 2, 3)}));
    const HBITMAP shared = GetSkinBitmap(".\\own.bmp");
    const HBITMAP own = LoadSkinBitmap(".\\own.bmp");
    EXPECT_NE(nullptr, own);
    EXPECT_NE(shared, own);
    EXPECT_TRUE(DeleteObject(own));
    EXPECT_EQ(nullptr, LoadSkinBitmap(".\\nowhere.bmp"));
}

TEST(SkinCache, NoBitmapHasNoSize)
{
    const SIZE size = GetBitmapSize(nullptr);
    EXPECT_EQ(0, size.cx);
    EXPECT_EQ(0, size.cy);
}

TEST(SkinCache, PageBackgroundIsASheetOpenAtTheBottom)
{
    const HWND window = CreateWindowA("Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 100, 60, nullptr,
                                      nullptr, nullptr, nullptr);
    PumpMessages();
    const HDC dc = GetDC(window);
    FillPageBackground(dc, window);
    ReleaseDC(window, dc);

    const int left[] = {0, 15, 16, 83, 84, 99};
    const bool isSheet[] = {false, false, true, true, false, false};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(isSheet[i] ? kPageSheet : kPageSurround, PixelAt(window, left[i], 59)) << i;
    EXPECT_EQ(kPageSurround, PixelAt(window, 50, 15));
    EXPECT_EQ(kPageSheet, PixelAt(window, 50, 16));
    DestroyWindow(window);
}

TEST(SkinCache, ScaleIsOneAtTheStart)
{
    EXPECT_EQ(1.0f, GetUIScale());
    EXPECT_EQ(40, Scaled(40));
}

TEST(SkinCache, ScaledLengthsAreCutTowardZero)
{
    const CScale scale(1.25f);
    EXPECT_EQ(1.25f, GetUIScale());
    EXPECT_EQ(21, Scaled(17));
    EXPECT_EQ(-21, Scaled(-17));
    EXPECT_EQ(50, Scaled(40));
    EXPECT_EQ(0, Scaled(0));
}
