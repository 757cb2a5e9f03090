// A program of its own: the first good bitmap is kept for the life of the process, so what is
// missing or broken must come before it.
#include "skin/MyRichEdit.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "tests/core/TempWorkingFolder.h"
#include "tests/skin/KitWindow.h"
#include "tests/skin/TestBitmap.h"

namespace
{

constexpr COLORREF kUp = RGB(200, 0, 0);

class BrokenSkin : public TempWorkingFolder
{
};

std::string GoodBitmap(int cellWidth, int cellHeight)
{
    return FlatBitmap(2, cellWidth, cellHeight, {kUp, kUp, kUp, kUp});
}

/// A bitmap file whose header tells another size than its pixels have.
std::string WithSize(std::string bytes, LONG width, LONG height)
{
    auto* info = reinterpret_cast<BITMAPINFOHEADER*>(&bytes[sizeof(BITMAPFILEHEADER)]);
    info->biWidth = width;
    info->biHeight = height;
    return bytes;
}

std::string RandomBytes(size_t count)
{
    std::string bytes;
    unsigned random = 12345;
    while (bytes.size() < count)
    {
        random = random * 1664525u + 1013904223u;
        bytes += static_cast<char>(random >> 24);
    }
    return bytes;
}

/// Uses a field: it must step and be drawn. @return the colour of its up arrow
COLORREF Use(CMyRichEdit_MyCtrl& edit)
{
    edit.EnableSpin();
    Paint(edit);
    edit.SpinClick(CPoint(110, 5));
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ("1", text);
    edit.ReleaseSpin();
    return PixelOf(edit, 110, 7);
}

void Make(CMyRichEdit_MyCtrl& edit, KitWindow& parent)
{
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(20, 20, 140, 50), &parent, 9));
}

COLORREF UseFreshField(KitWindow& parent)
{
    CMyRichEdit_MyCtrl edit;
    Make(edit, parent);
    return Use(edit);
}

} // namespace

TEST_F(BrokenSkin, AMissingOrUnreadableFileIsTriedAgain)
{
    KitWindow parent;
    const char* const kFile = "skin/ctrl/Spin.bmp";
    EXPECT_COLOR(kFieldBack, UseFreshField(parent)) << "without a folder";
    std::filesystem::create_directories("skin/ctrl");
    EXPECT_COLOR(kFieldBack, UseFreshField(parent)) << "without a file";
    for (const std::string& bytes :
         {std::string(), std::string("BM"), RandomBytes(5000), "BM" + RandomBytes(5000)})
    {
        WriteBytes(kFile, bytes);
        EXPECT_COLOR(kFieldBack, UseFreshField(parent)) << bytes.size();
    }
    WriteBytes(kFile, GoodBitmap(12, 8));
    EXPECT_COLOR(kUp, UseFreshField(parent));
    std::filesystem::remove(kFile);
    EXPECT_COLOR(kUp, UseFreshField(parent)) << "kept from before";
}

TEST_F(BrokenSkin, BitmapsWhoseHeaderLiesAreNotLoaded)
{
    const std::string good = GoodBitmap(12, 8);
    const std::string broken[] = {
        good.substr(0, 40),
        good.substr(0, 60),
        WithSize(good, 0, 0),
        WithSize(good, -24, 16),
        WithSize(good, 0x7FFFFFFF, 0x7FFFFFFF),
        WithSize(good, 100000, 100000),
    };
    for (const std::string& bytes : broken)
    {
        WriteBytes("broken.bmp", bytes);
        EXPECT_EQ(nullptr, LoadSkinBitmap("broken.bmp")) << &bytes - broken;
    }
}

TEST_F(BrokenSkin, ABitmapFromTopToBottomIsLoaded)
{
    KitWindow parent;
    WriteBytes("down.bmp", WithSize(GoodBitmap(12, 8), 24, -16));
    const HBITMAP bitmap = LoadSkinBitmap("down.bmp");
    EXPECT_NE(nullptr, bitmap);
    CMyRichEdit_MyCtrl edit;
    Make(edit, parent);
    edit.SetSpinBitmap(bitmap);
    // Wine loads it black.
    EXPECT_NE(kFieldBack, Use(edit));
    edit.DestroyWindow();
    DeleteObject(bitmap);
}

TEST_F(BrokenSkin, BitmapsOfAbsurdSizesDoNoHarm)
{
    KitWindow parent;
    const struct
    {
        int width;
        int height;
        COLORREF color;
    } kSizes[] = {
        {1, 1, kFieldBack}, {2, 1, kFieldBack}, {2, 2, kUp}, {20000, 2, kUp}, {2, 20000, kUp}};
    for (const auto& size : kSizes)
    {
        const HBITMAP bitmap = CreateBitmap(size.width, size.height, 1, 32, nullptr);
        const HDC memory = CreateCompatibleDC(nullptr);
        const HGDIOBJ old = SelectObject(memory, bitmap);
        const HBRUSH brush = CreateSolidBrush(kUp);
        const RECT all = {0, 0, size.width, size.height};
        FillRect(memory, &all, brush);
        DeleteObject(brush);
        SelectObject(memory, old);
        DeleteDC(memory);

        CMyRichEdit_MyCtrl edit;
        Make(edit, parent);
        edit.SetSpinBitmap(bitmap);
        EXPECT_COLOR(size.color, Use(edit)) << size.width << " by " << size.height;
        edit.DestroyWindow();
        DeleteObject(bitmap);
    }
}
