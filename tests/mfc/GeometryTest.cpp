#include <afx.h>

#include <gtest/gtest.h>

TEST(Size, Operators)
{
    CSize size(3, 4);
    EXPECT_TRUE(size == CSize(3, 4));
    EXPECT_TRUE(size != CSize(4, 3));
    EXPECT_TRUE(CSize(4, 6) == size + CSize(1, 2));
    EXPECT_TRUE(CSize(2, 2) == size - CSize(1, 2));
    EXPECT_TRUE(CSize(-3, -4) == -size);
    size += CSize(1, 1);
    size -= CSize(2, 3);
    EXPECT_TRUE(CSize(2, 2) == size);
    EXPECT_TRUE(CPoint(12, 22) == size + CPoint(10, 20));
    EXPECT_TRUE(CSize(0, 0) == CSize());
    size.SetSize(7, 8);
    EXPECT_TRUE(CSize(7, 8) == size);
}

TEST(Point, Operators)
{
    CPoint point(1, 2);
    EXPECT_TRUE(CPoint(4, 6) == point + CSize(3, 4));
    EXPECT_TRUE(CPoint(-2, -2) == point - CSize(3, 4));
    EXPECT_TRUE(CSize(-9, -8) == point - CPoint(10, 10));
    EXPECT_TRUE(CPoint(-1, -2) == -point);
    point.Offset(4, 3);
    EXPECT_TRUE(CPoint(5, 5) == point);
    point += CSize(1, 0);
    point -= CPoint(0, 1);
    EXPECT_TRUE(CPoint(6, 4) == point);
    EXPECT_TRUE(point != CPoint(4, 6));
    point.SetPoint(9, 9);
    EXPECT_TRUE(CPoint(9, 9) == point);
}

TEST(Point, OfMouseMessageIsSigned)
{
    EXPECT_TRUE(CPoint(-5, 7) == CPoint(static_cast<LPARAM>(MAKELONG(-5, 7))));
}

TEST(Rect, MeasuresAndCorners)
{
    const CRect rect(10, 20, 40, 60);
    EXPECT_EQ(30, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_TRUE(CSize(30, 40) == rect.Size());
    EXPECT_TRUE(CPoint(10, 20) == rect.TopLeft());
    EXPECT_TRUE(CPoint(40, 60) == rect.BottomRight());
    EXPECT_TRUE(CPoint(25, 40) == rect.CenterPoint());
    EXPECT_TRUE(rect == CRect(CPoint(10, 20), CSize(30, 40)));
    EXPECT_TRUE(rect == CRect(CPoint(10, 20), CPoint(40, 60)));
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());

    CRect movable(rect);
    movable.TopLeft() = CPoint(1, 2);
    movable.BottomRight() = CPoint(3, 4);
    EXPECT_TRUE(movable == CRect(1, 2, 3, 4));
}

TEST(Rect, IsARectForWindows)
{
    CRect rect;
    ::SetRect(rect, 1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    const CRect constant(rect);
    RECT copied;
    ::CopyRect(&copied, constant);
    EXPECT_EQ(3, copied.right);
}

TEST(Rect, HoldsLeftTopEdgeOnly)
{
    const CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(rect.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
}

TEST(Rect, InflateAndDeflate)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(9, 8, 21, 22));
    rect.DeflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(10, 10, 20, 20));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(9, 8, 23, 24));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(10, 10, 20, 20));
    rect.InflateRect(CSize(1, 1));
    rect.DeflateRect(CSize(2, 3));
    EXPECT_TRUE(rect == CRect(11, 12, 19, 18));
    const CRect edges(1, 2, 3, 4);
    rect.InflateRect(edges);
    EXPECT_TRUE(rect == CRect(10, 10, 22, 22));
    rect.DeflateRect(edges);
    EXPECT_TRUE(rect == CRect(11, 12, 19, 18));
}

TEST(Rect, Move)
{
    CRect rect(0, 0, 10, 20);
    rect.OffsetRect(5, 6);
    rect.OffsetRect(CPoint(1, 1));
    rect.OffsetRect(CSize(1, 1));
    EXPECT_TRUE(rect == CRect(7, 8, 17, 28));
    rect.MoveToX(0);
    rect.MoveToY(1);
    EXPECT_TRUE(rect == CRect(0, 1, 10, 21));
    rect.MoveToXY(3, 4);
    EXPECT_TRUE(rect == CRect(3, 4, 13, 24));
    EXPECT_TRUE(rect + CPoint(1, 1) == CRect(4, 5, 14, 25));
    EXPECT_TRUE(rect - CSize(1, 1) == CRect(2, 3, 12, 23));
}

TEST(Rect, Normalize)
{
    CRect rect(10, 30, 5, 20);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(5, 20, 10, 30));
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(5, 20, 10, 30));
}

TEST(Rect, Sets)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 20, 20);
    CRect result;
    EXPECT_TRUE(result.IntersectRect(a, b));
    EXPECT_TRUE(result == CRect(5, 5, 10, 10));
    EXPECT_FALSE(result.IntersectRect(a, CRect(50, 50, 60, 60)));
    EXPECT_TRUE(result.IsRectNull());
    EXPECT_TRUE(result.UnionRect(a, b));
    EXPECT_TRUE(result == CRect(0, 0, 20, 20));
    EXPECT_TRUE((a & b) == CRect(5, 5, 10, 10));
    EXPECT_TRUE((a | b) == CRect(0, 0, 20, 20));
    EXPECT_TRUE(result.SubtractRect(a, CRect(0, 0, 10, 4)));
    EXPECT_TRUE(result == CRect(0, 4, 10, 10));
}

TEST(Rect, Assignment)
{
    const RECT plain = {1, 2, 3, 4};
    CRect rect;
    rect = plain;
    EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
    rect.CopyRect(&plain);
    EXPECT_TRUE(rect.EqualRect(&plain));
    rect.SetRect(5, 6, 7, 8);
    EXPECT_TRUE(rect != plain);
}
