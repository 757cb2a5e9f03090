// The shipped bitmaps, read the way the controls read them.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <windows.h>

namespace
{

constexpr COLORREF kSheet = RGB(255, 255, 255);
constexpr COLORREF kField = RGB(245, 248, 250);
constexpr COLORREF kLabel = RGB(108, 114, 147);
constexpr COLORREF kAccent = RGB(56, 125, 255);
constexpr COLORREF kSelection = RGB(234, 242, 255);
constexpr COLORREF kTransparent = 0xF9F5F4;

/// Pixels of a rectangle, row by row from the top.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<COLORREF> pixels;

    COLORREF At(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }

    Picture Cut(int left, int top, int cutWidth, int cutHeight) const
    {
        Picture cut{cutWidth, cutHeight, {}};
        for (int y = top; y < top + cutHeight; ++y)
            for (int x = left; x < left + cutWidth; ++x)
                cut.pixels.push_back(At(x, y));
        return cut;
    }

    /// One cell of an even grid.
    Picture Cell(int columns, int rows, int column, int row) const
    {
        const int cellWidth = width / columns;
        const int cellHeight = height / rows;
        return Cut(column * cellWidth, row * cellHeight, cellWidth, cellHeight);
    }

    int Count(COLORREF color) const
    {
        return static_cast<int>(std::count(pixels.begin(), pixels.end(), color));
    }
};

COLORREF PixelOfBits(const BYTE* bits)
{
    return RGB(bits[2], bits[1], bits[0]);
}

/// Loads a file; anything but an uncompressed 24-bit bitmap is a failed test and an empty picture.
Picture Load(const std::string& path)
{
    HANDLE bitmap = LoadImageA(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0,
                               LR_LOADFROMFILE | LR_CREATEDIBSECTION);
    DIBSECTION section = {};
    if (GetObjectA(bitmap, sizeof section, &section) != sizeof section ||
        section.dsBmih.biBitCount != 24 || section.dsBmih.biCompression != BI_RGB)
    {
        ADD_FAILURE() << path << " is not a 24-bit bitmap";
        return {};
    }
    Picture picture{section.dsBm.bmWidth, section.dsBm.bmHeight, {}};
    const BYTE* bits = static_cast<const BYTE*>(section.dsBm.bmBits);
    for (int y = picture.height - 1; y >= 0; --y) // stored from the bottom
        for (int x = 0; x < picture.width; ++x)
            picture.pixels.push_back(PixelOfBits(bits + y * section.dsBm.bmWidthBytes + x * 3));
    DeleteObject(bitmap);
    return picture;
}

/// The cells of an even grid, row by row.
std::vector<Picture> Cells(const Picture& picture, int columns, int rows)
{
    EXPECT_GT(picture.width, 0);
    EXPECT_EQ(picture.width % columns, 0);
    EXPECT_EQ(picture.height % rows, 0);
    std::vector<Picture> cells;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            cells.push_back(picture.Cell(columns, rows, column, row));
    return cells;
}

void ExpectAllDifferent(const std::vector<Picture>& cells)
{
    for (size_t i = 0; i < cells.size(); ++i)
        for (size_t j = 0; j < i; ++j)
            EXPECT_NE(cells[i].pixels, cells[j].pixels) << "cells " << j << " and " << i;
}

/// A shape that reaches the edge of its cell would be clipped or touch its neighbour.
void ExpectMargin(const Picture& cell, COLORREF background)
{
    ASSERT_GT(cell.width, 2);
    ASSERT_GT(cell.height, 2);
    const Picture inner = cell.Cut(1, 1, cell.width - 2, cell.height - 2);
    EXPECT_EQ(cell.Count(background) - inner.Count(background),
              cell.width * cell.height - inner.width * inner.height);
    EXPECT_LT(inner.Count(background), inner.width * inner.height) << "an empty cell";
}

TEST(SkinArt, CheckBoxesFillEightCells)
{
    const std::vector<Picture> cells = Cells(Load(".\\skin\\Ctrl\\Check.bmp"), 8, 1);
    ExpectAllDifferent(cells);
    for (const Picture& cell : cells)
        ExpectMargin(cell, kSheet);
    const Picture& empty = cells[0];
    const Picture& checked = cells[5];
    EXPECT_EQ(empty.Count(kAccent), 0);
    EXPECT_GT(checked.Count(kAccent), checked.width * checked.height / 2);
    EXPECT_EQ(empty.At(empty.width / 2, empty.height / 2), kSheet);
}

TEST(SkinArt, PressedEmptyCheckBoxShowsATickForListRows)
{
    const std::vector<Picture> cells = Cells(Load(".\\skin\\Ctrl\\Check.bmp"), 8, 1);
    const auto tick = [](const Picture& cell)
    {
        return cell.Cut(3, 3, cell.width - 6, cell.height - 6).Count(kAccent);
    };
    EXPECT_EQ(tick(cells[0]), 0);
    EXPECT_GT(tick(cells[2]), 8);
}

TEST(SkinArt, ComboBoxArrowHasTwoHalvesOnTheField)
{
    const std::vector<Picture> halves = Cells(Load(".\\skin\\ctrl\\ComboBoxArrow.bmp"), 2, 1);
    ExpectAllDifferent(halves);
    for (const Picture& half : halves)
        ExpectMargin(half, kField);
}

TEST(SkinArt, SpinArrowsFillFourCellsOnTheField)
{
    const Picture spin = Load(".\\skin\\ctrl\\Spin.bmp");
    const std::vector<Picture> cells = Cells(spin, 2, 2);
    EXPECT_EQ(spin.width / 2, 24) << "the width of the spin column";
    ExpectAllDifferent(cells);
    for (int column = 0; column < 2; ++column)
        ExpectMargin(spin.Cell(2, 1, column, 0), kField);
    for (const Picture& cell : cells)
        EXPECT_LT(cell.Count(kField), cell.width * cell.height);
}

class ListItems : public testing::Test
{
protected:
    const int columns =
        GetPrivateProfileIntA("ListBoxItem", "BmpNum", 8, ".\\skin\\ctrl\\Ctrl.ini");
    const Picture strip = Load(".\\skin\\ctrl\\ListBoxItem.bmp");
    const std::vector<Picture> cells = Cells(strip, columns, 2);

    const Picture& Normal(int image) const { return cells[image]; }
    const Picture& Selected(int image) const { return cells[columns + image]; }
};

TEST_F(ListItems, HaveAsManySquareColumnsAsTheIniFileSays)
{
    EXPECT_EQ(columns, 13);
    EXPECT_EQ(strip.width / columns, strip.height / 2);
}

TEST_F(ListItems, StandOnTheListsBackgrounds)
{
    for (int image = 0; image < columns; ++image)
    {
        SCOPED_TRACE(image);
        ExpectMargin(Normal(image), kSheet);
        ExpectMargin(Selected(image), kSelection);
    }
}

TEST_F(ListItems, AreOneShapeInTheTextColorsOfBothStates)
{
    for (int image = 0; image < columns; ++image)
    {
        SCOPED_TRACE(image);
        EXPECT_GT(Normal(image).Count(kLabel), 0);
        EXPECT_EQ(Normal(image).Count(kLabel), Selected(image).Count(kAccent));
        EXPECT_EQ(Normal(image).Count(kSheet), Selected(image).Count(kSelection));
    }
}

TEST_F(ListItems, TellThePagesApart)
{
    ExpectAllDifferent({Normal(0), Normal(8), Normal(9), Normal(10), Normal(11), Normal(12)});
}

class TradeBitmaps : public testing::TestWithParam<const char*>
{
protected:
    Picture LoadTrade(const char* name) const
    {
        return Load(std::string(".\\skin\\") + GetParam() + "\\Trade\\" + name);
    }
};

TEST_P(TradeBitmaps, AreThereForTheSkin)
{
    ASSERT_EQ(GetACP(), 936u) << "the folder's name cannot be opened";
    EXPECT_GT(LoadTrade("p11.bmp").width, 0);
    for (const char* name : {"6.bmp", "7.bmp"})
        ExpectAllDifferent(Cells(LoadTrade(name), 4, 1));
}

TEST_P(TradeBitmaps, DropDownArrowHasFourStatesOnTheTransparentColor)
{
    const std::vector<Picture> cells = Cells(LoadTrade("kbo.bmp"), 4, 1);
    ExpectAllDifferent(cells);
    for (const Picture& cell : cells)
        ExpectMargin(cell, kTransparent);
}

INSTANTIATE_TEST_SUITE_P(Skins, TradeBitmaps, testing::Values("蓝色空间", "经典黑色"));

} // namespace
