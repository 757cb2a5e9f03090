#include "tests/mfc/GdiCount.h"
#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <gtest/gtest.h>

namespace
{
/// A memory context on a bitmap of 20 by 20 pixels, black at first.
class CCanvas : public CDC
{
public:
    CCanvas()
    {
        CClientDC screen(nullptr);
        CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, 20, 20);
        m_old = SelectObject(&m_bitmap)->operator HBITMAP();
        PatBlt(0, 0, 20, 20, BLACKNESS);
    }
    ~CCanvas() override { ::SelectObject(m_hDC, m_old); }

private:
    CBitmap m_bitmap;
    HBITMAP m_old = nullptr;
};

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
} // namespace

TEST(GdiObject, AttachAndDetach)
{
    CBrush brush;
    EXPECT_FALSE(brush.Attach(nullptr));
    EXPECT_TRUE(brush.CreateSolidBrush(kRed));
    EXPECT_FALSE(brush.CreateSolidBrush(kGreen)) << "holds one already";
    HGDIOBJ handle = brush.m_hObject;
    EXPECT_EQ(&brush, CGdiObject::FromHandle(handle));
    EXPECT_EQ(handle, brush.Detach());
    EXPECT_EQ(nullptr, brush.m_hObject);
    EXPECT_NE(&brush, CGdiObject::FromHandle(handle));
    EXPECT_TRUE(::DeleteObject(handle));
    EXPECT_FALSE(brush.DeleteObject());
    EXPECT_EQ(nullptr, brush.Detach());
    theApp.OnIdle(0);
}

TEST(GdiObject, DestructorDeletesTheHandle)
{
    HGDIOBJ handle;
    {
        CPen pen(PS_SOLID, 1, kRed);
        handle = pen;
        EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(handle));
    }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(GdiObject, TemporaryObjectsHaveTheFittingClassAndOwnNothing)
{
    HBRUSH brush = ::CreateSolidBrush(kRed);
    CGdiObject* temporary = CGdiObject::FromHandle(brush);
    EXPECT_TRUE(temporary->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_EQ(temporary, CBrush::FromHandle(brush)) << "one object a handle";
    theApp.OnIdle(0);
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(brush));
    ::DeleteObject(brush);

    HFONT font = static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
    EXPECT_TRUE(CFont::FromHandle(font)->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_EQ(nullptr, CFont::FromHandle(nullptr));
    theApp.OnIdle(0);
}

TEST(GdiObject, NullPointersHaveNullHandles)
{
    CGdiObject* volatile noObject = nullptr;
    CDC* volatile noContext = nullptr;
    EXPECT_EQ(nullptr, static_cast<CGdiObject*>(noObject)->GetSafeHandle());
    EXPECT_EQ(nullptr, static_cast<CDC*>(noContext)->GetSafeHdc());
}

TEST(Pen, Creation)
{
    CPen pen;
    EXPECT_TRUE(pen.CreatePen(PS_DASH, 1, kBlue));
    LOGPEN log = {};
    EXPECT_NE(0, pen.GetLogPen(&log));
    EXPECT_EQ(kBlue, log.lopnColor);
    CPen other;
    EXPECT_TRUE(other.CreatePenIndirect(&log));
}

TEST(Brush, Creation)
{
    CBrush brush(kGreen);
    LOGBRUSH log = {};
    EXPECT_NE(0, brush.GetLogBrush(&log));
    EXPECT_EQ(kGreen, log.lbColor);
    CBrush hatch(HS_CROSS, kRed);
    EXPECT_NE(nullptr, hatch.m_hObject);
    CBitmap none;
    EXPECT_THROW(CBrush pattern(&none), CResourceException*);
}

TEST(Font, Creation)
{
    CFont font;
    EXPECT_TRUE(font.CreateFont(14, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, FF_SWISS,
                                "Tahoma"));
    LOGFONT log = {};
    EXPECT_NE(0, font.GetLogFont(&log));
    EXPECT_EQ(14, log.lfHeight);
    EXPECT_EQ(FW_BOLD, log.lfWeight);
    CFont copy;
    EXPECT_TRUE(copy.CreateFontIndirect(&log));
}

TEST(Font, PointSizeIsInTenths)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, "Tahoma"));
    LOGFONT log = {};
    font.GetLogFont(&log);
    CClientDC screen(nullptr);
    EXPECT_EQ(-::MulDiv(9, screen.GetDeviceCaps(LOGPIXELSY), 72), log.lfHeight);
    EXPECT_STREQ("Tahoma", log.lfFaceName);
}

TEST(Bitmap, CreationAndResource)
{
    CBitmap bitmap;
    const BYTE bits[] = {0xF0, 0, 0x0F, 0};
    EXPECT_TRUE(bitmap.CreateBitmap(8, 2, 1, 1, bits));
    BITMAP info = {};
    EXPECT_NE(0, bitmap.GetBitmap(&info));
    EXPECT_EQ(8, info.bmWidth);
    EXPECT_EQ(2, info.bmHeight);
    BYTE read[4] = {};
    EXPECT_EQ(4u, bitmap.GetBitmapBits(4, read));
    EXPECT_EQ(0xF0, read[0]);

    CBitmap loaded;
    EXPECT_TRUE(loaded.LoadBitmap(IDB_SMALL));
    EXPECT_NE(0, loaded.GetBitmap(&info));
    EXPECT_EQ(2, info.bmWidth);
    EXPECT_EQ(3, info.bmHeight);
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(9999));
    EXPECT_EQ(nullptr, missing.m_hObject);
}

TEST(Region, Combination)
{
    CRgn left;
    CRgn right;
    CRgn both;
    left.CreateRectRgn(0, 0, 10, 10);
    right.CreateRectRgnIndirect(CRect(10, 0, 20, 10));
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(SIMPLEREGION, both.CombineRgn(&left, &right, RGN_OR));
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_TRUE(box == CRect(0, 0, 20, 10));
    EXPECT_TRUE(both.PtInRegion(15, 5));
    EXPECT_FALSE(left.PtInRegion(CPoint(15, 5)));
    both.CopyRgn(&left);
    EXPECT_TRUE(both.EqualRgn(&left));
    both.OffsetRgn(1, 1);
    EXPECT_FALSE(both.EqualRgn(&left));
    EXPECT_TRUE(both.RectInRegion(CRect(0, 0, 5, 5)));
    both.SetRectRgn(CRect(0, 0, 1, 1));
    both.GetRgnBox(&box);
    EXPECT_TRUE(box == CRect(0, 0, 1, 1));

    const POINT triangle[] = {{0, 0}, {10, 0}, {0, 10}};
    CRgn polygon;
    EXPECT_TRUE(polygon.CreatePolygonRgn(triangle, 3, ALTERNATE));
    EXPECT_TRUE(polygon.PtInRegion(1, 1));
    EXPECT_FALSE(polygon.PtInRegion(9, 9));
}

TEST(DC, SelectGivesWhatWasThere)
{
    CCanvas canvas;
    CPen pen(PS_SOLID, 1, kRed);
    CPen* old = canvas.SelectObject(&pen);
    ASSERT_NE(nullptr, old);
    EXPECT_EQ(&pen, canvas.GetCurrentPen());
    EXPECT_EQ(&pen, canvas.SelectObject(old)) << "the permanent object comes back";

    CBrush brush(kGreen);
    CBrush* oldBrush = canvas.SelectObject(&brush);
    EXPECT_EQ(&brush, canvas.GetCurrentBrush());
    EXPECT_EQ(&brush, canvas.SelectObject(oldBrush));

    CFont font;
    font.CreatePointFont(90, "Tahoma");
    CFont* oldFont = canvas.SelectObject(&font);
    EXPECT_EQ(&font, canvas.GetCurrentFont());
    EXPECT_EQ(&font, canvas.SelectObject(oldFont));

    EXPECT_NE(nullptr, canvas.SelectStockObject(NULL_BRUSH));
    CPen* none = nullptr;
    EXPECT_EQ(nullptr, canvas.SelectObject(none));
    theApp.OnIdle(0);
}

TEST(DC, ColoursAndModes)
{
    CCanvas canvas;
    canvas.SetTextColor(kRed);
    EXPECT_EQ(kRed, canvas.SetTextColor(kBlue));
    EXPECT_EQ(kBlue, canvas.GetTextColor());
    canvas.SetBkColor(kGreen);
    EXPECT_EQ(kGreen, canvas.GetBkColor());
    canvas.SetBkMode(TRANSPARENT);
    EXPECT_EQ(TRANSPARENT, canvas.SetBkMode(OPAQUE));
    EXPECT_EQ(OPAQUE, canvas.GetBkMode());
    canvas.SetStretchBltMode(HALFTONE);
    EXPECT_EQ(HALFTONE, canvas.GetStretchBltMode());
    canvas.SetROP2(R2_XORPEN);
    EXPECT_EQ(R2_XORPEN, canvas.GetROP2());
    canvas.SetTextAlign(TA_RIGHT);
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT), canvas.GetTextAlign());
}

TEST(DC, SaveAndRestore)
{
    CCanvas canvas;
    canvas.SetTextColor(kRed);
    const int saved = canvas.SaveDC();
    EXPECT_NE(0, saved);
    canvas.SetTextColor(kBlue);
    EXPECT_TRUE(canvas.RestoreDC(saved));
    EXPECT_EQ(kRed, canvas.GetTextColor());
}

TEST(DC, FillsAndFrames)
{
    CCanvas canvas;
    CBrush red(kRed);
    canvas.FillRect(CRect(0, 0, 10, 10), &red);
    EXPECT_EQ(kRed, canvas.GetPixel(9, 9));
    EXPECT_EQ(RGB(0, 0, 0), canvas.GetPixel(10, 10));

    canvas.FillSolidRect(CRect(0, 0, 5, 5), kGreen);
    EXPECT_EQ(kGreen, canvas.GetPixel(4, 4));
    EXPECT_EQ(kRed, canvas.GetPixel(5, 5));
    EXPECT_EQ(kGreen, canvas.GetBkColor());

    CBrush blue(kBlue);
    canvas.FrameRect(CRect(0, 0, 20, 20), &blue);
    EXPECT_EQ(kBlue, canvas.GetPixel(0, 10));
    EXPECT_EQ(kBlue, canvas.GetPixel(19, 10));
    EXPECT_EQ(kGreen, canvas.GetPixel(1, 1));

    canvas.Draw3dRect(CRect(2, 2, 18, 18), kRed, kGreen);
    EXPECT_EQ(kRed, canvas.GetPixel(2, 2));
    EXPECT_EQ(kRed, canvas.GetPixel(16, 2));
    EXPECT_EQ(kGreen, canvas.GetPixel(17, 2));
    EXPECT_EQ(kGreen, canvas.GetPixel(17, 17));
    EXPECT_EQ(kGreen, canvas.GetPixel(2, 17));

    canvas.SetPixel(CPoint(8, 8), kBlue);
    EXPECT_EQ(kBlue, canvas.GetPixel(CPoint(8, 8)));
    EXPECT_TRUE(canvas.PatBlt(0, 0, 20, 20, WHITENESS));
    EXPECT_EQ(RGB(255, 255, 255), canvas.GetPixel(8, 8));
}

TEST(DC, LinesAndShapes)
{
    CCanvas canvas;
    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush(kGreen);
    canvas.SelectObject(&pen);
    canvas.SelectObject(&brush);
    canvas.MoveTo(1, 1);
    EXPECT_TRUE(canvas.GetCurrentPosition() == CPoint(1, 1));
    EXPECT_TRUE(canvas.LineTo(5, 1));
    EXPECT_EQ(kRed, canvas.GetPixel(4, 1));
    EXPECT_NE(kRed, canvas.GetPixel(5, 1)) << "the end is not drawn";
    EXPECT_TRUE(canvas.MoveTo(CPoint(0, 0)) == CPoint(5, 1));

    EXPECT_TRUE(canvas.Rectangle(CRect(4, 4, 12, 12)));
    EXPECT_EQ(kRed, canvas.GetPixel(4, 4));
    EXPECT_EQ(kGreen, canvas.GetPixel(6, 6));

    const POINT triangle[] = {{0, 12}, {19, 12}, {0, 19}};
    EXPECT_TRUE(canvas.Polygon(triangle, 3));
    EXPECT_EQ(kGreen, canvas.GetPixel(2, 14));
    canvas.SelectStockObject(BLACK_PEN);
    canvas.SelectStockObject(WHITE_BRUSH);
}

TEST(DC, ClippingAndOrigin)
{
    CCanvas canvas;
    EXPECT_NE(ERROR, canvas.IntersectClipRect(CRect(0, 0, 10, 10)));
    canvas.FillSolidRect(CRect(0, 0, 20, 20), kRed);
    EXPECT_NE(ERROR, canvas.SelectClipRgn(nullptr));
    EXPECT_EQ(kRed, canvas.GetPixel(5, 5));
    EXPECT_EQ(RGB(0, 0, 0), canvas.GetPixel(15, 15));

    canvas.ExcludeClipRect(CRect(0, 0, 10, 10));
    canvas.FillSolidRect(CRect(0, 0, 20, 20), kGreen);
    CRgn all;
    all.CreateRectRgn(0, 0, 20, 20);
    canvas.SelectObject(&all);
    EXPECT_EQ(kRed, canvas.GetPixel(5, 5));
    EXPECT_EQ(kGreen, canvas.GetPixel(15, 15));

    EXPECT_TRUE(canvas.SetViewportOrg(10, 10) == CPoint(0, 0));
    EXPECT_TRUE(canvas.GetViewportOrg() == CPoint(10, 10));
    canvas.SetPixel(1, 1, kBlue);
    canvas.SetViewportOrg(CPoint(0, 0));
    EXPECT_EQ(kBlue, canvas.GetPixel(11, 11));
}

TEST(DC, Blits)
{
    CCanvas source;
    source.FillSolidRect(CRect(0, 0, 2, 2), kRed);
    CCanvas target;
    EXPECT_TRUE(target.BitBlt(5, 5, 2, 2, &source, 0, 0, SRCCOPY));
    EXPECT_EQ(kRed, target.GetPixel(6, 6));
    EXPECT_EQ(RGB(0, 0, 0), target.GetPixel(7, 7));
    EXPECT_TRUE(target.StretchBlt(10, 10, 8, 8, &source, 0, 0, 2, 2, SRCCOPY));
    EXPECT_EQ(kRed, target.GetPixel(17, 17));
    EXPECT_TRUE(target.TransparentBlt(0, 0, 2, 2, &source, 0, 0, 2, 2, kRed));
    EXPECT_EQ(RGB(0, 0, 0), target.GetPixel(0, 0)) << "the one colour is left out";

    TRIVERTEX corners[] = {{0, 0, 0xFF00, 0, 0, 0}, {20, 20, 0xFF00, 0, 0, 0}};
    GRADIENT_RECT mesh = {0, 1};
    EXPECT_TRUE(target.GradientFill(corners, 2, &mesh, 1, GRADIENT_FILL_RECT_V));
    EXPECT_EQ(kRed, target.GetPixel(1, 1));
}

TEST(DC, Text)
{
    CCanvas canvas;
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    canvas.SelectObject(&font);
    const CString text("Text");
    const CSize size = canvas.GetTextExtent(text);
    EXPECT_GT(size.cx, 0);
    EXPECT_TRUE(size == canvas.GetTextExtent("Text!", 4));
    EXPECT_TRUE(size == canvas.GetOutputTextExtent(text));
    TEXTMETRIC metrics = {};
    EXPECT_TRUE(canvas.GetTextMetrics(&metrics));
    EXPECT_EQ(size.cy, metrics.tmHeight);

    CRect measured(0, 0, 0, 0);
    EXPECT_EQ(size.cy, canvas.DrawText(text, &measured, DT_CALCRECT | DT_SINGLELINE));
    EXPECT_EQ(size.cx, measured.Width());

    canvas.SetTextColor(kRed);
    canvas.SetBkColor(kBlue);
    EXPECT_TRUE(canvas.TextOut(0, 0, text));
    EXPECT_NE(RGB(0, 0, 0), canvas.GetPixel(0, 0));
    EXPECT_TRUE(canvas.ExtTextOut(0, 0, ETO_OPAQUE, CRect(0, 0, 20, 20), CString("x"), nullptr));
    EXPECT_EQ(kBlue, canvas.GetPixel(19, 19));
    canvas.SelectStockObject(SYSTEM_FONT);
}

TEST(DC, SeparateAttributeContext)
{
    CCanvas output;
    CCanvas attributes;
    CDC both;
    both.SetOutputDC(output.Detach());
    both.SetAttribDC(attributes);
    EXPECT_EQ(&both, CDC::FromHandle(both.m_hDC));
    both.SetTextColor(kRed);
    EXPECT_EQ(kRed, ::GetTextColor(both.m_hDC));
    EXPECT_EQ(kRed, attributes.GetTextColor());
    EXPECT_EQ(kRed, both.GetTextColor());
    const HDC hdc = both.m_hDC;
    both.ReleaseAttribDC();
    both.ReleaseOutputDC();
    EXPECT_EQ(nullptr, both.m_hDC);
    EXPECT_NE(&both, CDC::FromHandle(hdc));
    output.Attach(hdc);
    theApp.OnIdle(0);
}

TEST(DC, NullContextDoesNothing)
{
    CDC none;
    CBrush red(kRed);
    none.FillRect(CRect(0, 0, 1, 1), &red);
    EXPECT_FALSE(none.LineTo(1, 1));
    EXPECT_EQ(CLR_INVALID, none.GetPixel(0, 0));
    EXPECT_FALSE(none.DeleteDC());
    EXPECT_EQ(nullptr, none.Detach());
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
    none.FillRect(CRect(0, 0, 1, 1), nullptr);
}

TEST(WindowContexts, AreReleased)
{
    CTestFrame frame;
    PumpPending();
    HDC client;
    {
        CClientDC dc(&frame);
        client = dc;
        EXPECT_EQ(frame.m_hWnd, ::WindowFromDC(client));
        EXPECT_EQ(&frame, dc.GetWindow());
    }
    EXPECT_EQ(nullptr, ::WindowFromDC(client));
    HDC window;
    {
        CWindowDC dc(&frame);
        window = dc;
        EXPECT_EQ(frame.m_hWnd, ::WindowFromDC(window));
    }
    EXPECT_EQ(nullptr, ::WindowFromDC(window));

    CDC* got = frame.GetDC();
    ASSERT_NE(nullptr, got);
    EXPECT_EQ(1, frame.ReleaseDC(got));
}

TEST(WindowContexts, PaintValidates)
{
    CTestFrame frame;
    PumpPending();
    frame.Invalidate();
    EXPECT_TRUE(::GetUpdateRect(frame, nullptr, FALSE));
    HDC painted = nullptr;
    {
        CPaintDC dc(&frame);
        painted = dc;
        EXPECT_EQ(dc.m_hDC, dc.m_ps.hdc);
        EXPECT_FALSE(CRect(dc.m_ps.rcPaint).IsRectEmpty());
    }
    EXPECT_FALSE(::GetUpdateRect(frame, nullptr, FALSE));
    EXPECT_EQ(nullptr, ::WindowFromDC(painted));
}

TEST(WindowContexts, MissingContextThrows)
{
    CWnd noWindow;
    EXPECT_THROW(CPaintDC dc(&noWindow), CResourceException*);
}

TEST(GdiLifetime, NothingIsLeft)
{
    CTestFrame frame;
    const auto drawOnce = [&frame]()
    {
        CClientDC screen(&frame);
        CCanvas canvas;
        CPen pen(PS_SOLID, 1, kRed);
        CBrush brush(kGreen);
        CFont font;
        font.CreatePointFont(90, "Tahoma");
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 5, 5);
        CRgn region;
        region.CreateRectRgn(0, 0, 5, 5);
        CPen* oldPen = canvas.SelectObject(&pen);
        CBrush* oldBrush = canvas.SelectObject(&brush);
        CFont* oldFont = canvas.SelectObject(&font);
        canvas.TextOut(0, 0, CString("x"));
        canvas.SelectObject(oldPen);
        canvas.SelectObject(oldBrush);
        canvas.SelectObject(oldFont);
        theApp.OnIdle(0);
    };
    for (int i = 0; i < 20; ++i)
    {
        drawOnce();
    }
    const int before = CountGdiObjects();
    ASSERT_GT(before, 0);
    for (int i = 0; i < 100; ++i)
    {
        drawOnce();
    }
    EXPECT_EQ(before, CountGdiObjects());
}

TEST(GdiLifetime, TheCountSeesALeak)
{
    const int before = CountGdiObjects();
    HBRUSH leak = ::CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_EQ(before + 1, CountGdiObjects());
    ::DeleteObject(leak);
    EXPECT_EQ(before, CountGdiObjects());
}
