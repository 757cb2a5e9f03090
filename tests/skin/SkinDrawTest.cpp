#include "skin/SkinDraw.h"
#include "tests/skin/SkinTestSupport.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

/// A disc on white, with slanted edges that stretching has to smooth.
class CDisc
{
public:
    CDisc()
    {
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        bitmap = CreateCompatibleBitmap(screen, 24, 24);
        ReleaseDC(nullptr, screen);
        const HGDIOBJ old = SelectObject(memory, bitmap);
        PatBlt(memory, 0, 0, 24, 24, WHITENESS);
        SelectObject(memory, GetStockObject(GRAY_BRUSH));
        Ellipse(memory, 6, 6, 18, 18);
        SelectObject(memory, old);
        DeleteDC(memory);
    }
    ~CDisc() { DeleteObject(bitmap); }

    HBITMAP bitmap;
};

std::vector<COLORREF> PixelsOf(const CCanvas& canvas)
{
    std::vector<COLORREF> pixels;
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 60; ++x)
            pixels.push_back(canvas.At(x, y));
    return pixels;
}

} // namespace

TEST(SkinDraw, WhatIsDrawnPieceByPieceIsTheWhole)
{
    const CDisc disc;
    for (const Box& target : {Box{5, 10, 24, 24}, Box{5, 10, 24, 22}, Box{5, 10, 36, 60}})
    {
        const BitmapPart part = {{0, 0, 24, 24}, target};
        const CCanvas whole;
        DrawBitmapPart(whole.dc, disc.bitmap, part);
        const CCanvas pieces;
        for (int top = 0; top < 200; top += 7)
        {
            SaveDC(pieces.dc);
            IntersectClipRect(pieces.dc, 0, top, 60, top + 7);
            DrawBitmapPart(pieces.dc, disc.bitmap, part);
            RestoreDC(pieces.dc, -1);
        }
        EXPECT_EQ(PixelsOf(whole), PixelsOf(pieces)) << target.width << " by " << target.height;
    }
}

TEST(SkinDraw, NothingIsDrawnOfNothing)
{
    const CDisc disc;
    const CCanvas canvas;
    const std::vector<COLORREF> before = PixelsOf(canvas);
    DrawBitmapPart(canvas.dc, nullptr, {{0, 0, 24, 24}, {5, 10, 24, 24}});
    DrawBitmapPart(canvas.dc, disc.bitmap, {{0, 0, 0, 24}, {5, 10, 24, 24}});
    DrawBitmapPart(canvas.dc, disc.bitmap, {{0, 0, 24, 24}, {5, 10, 24, -2}});
    EXPECT_EQ(before, PixelsOf(canvas));
}

TEST(SkinDraw, OneColourOfACopyLetsTheGroundThrough)
{
    const CDisc disc;
    const HBITMAP copy = MakeTransparent(disc.bitmap, RGB(255, 255, 255));
    ASSERT_TRUE(copy);
    const CCanvas canvas;
    const RECT all = {0, 0, 60, 200};
    const HBRUSH ground = CreateSolidBrush(RGB(10, 200, 30));
    FillRect(canvas.dc, &all, ground);
    DeleteObject(ground);
    const HDC memory = CreateCompatibleDC(canvas.dc);
    const HGDIOBJ old = SelectObject(memory, copy);
    AlphaBlend(canvas.dc, 3, 7, 24, 24, memory, 0, 0, 24, 24, {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
    DeleteObject(SelectObject(memory, old));
    DeleteDC(memory);
    EXPECT_EQ(RGB(10, 200, 30), canvas.At(3, 7)) << "white of the bitmap";
    EXPECT_EQ(RGB(128, 128, 128), canvas.At(3 + 12, 7 + 12)) << "the disc";
    EXPECT_EQ(RGB(0, 0, 0), canvas.At(3 + 12, 7 + 6)) << "its black edge";
    EXPECT_FALSE(MakeTransparent(nullptr, RGB(255, 255, 255)));
}
