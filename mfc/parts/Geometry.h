#pragma once

#include "mfc/parts/Platform.h"

class CPoint;
class CRect;

/// A width and a height.
class CSize : public tagSIZE
{
public:
    CSize()
        : CSize(0, 0)
    {
    }
    CSize(int initCX, int initCY)
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize)
        : CSize(initSize.cx, initSize.cy)
    {
    }
    explicit CSize(POINT initPt)
        : CSize(initPt.x, initPt.y)
    {
    }
    /// Low word and high word, signed.
    explicit CSize(DWORD dwSize)
        : CSize(static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize)))
    {
    }

    void SetSize(int CX, int CY) { *this = CSize(CX, CY); }

    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size) { *this = *this + size; }
    void operator-=(SIZE size) { *this = *this - size; }
    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;
};

class CPoint : public tagPOINT
{
public:
    CPoint()
        : CPoint(0, 0)
    {
    }
    CPoint(int initX, int initY)
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt)
        : CPoint(initPt.x, initPt.y)
    {
    }
    explicit CPoint(SIZE initSize)
        : CPoint(initSize.cx, initSize.cy)
    {
    }
    /// Low word and high word, signed: a mouse message's lParam.
    explicit CPoint(LPARAM dwPoint)
        : CPoint(static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint)))
    {
    }

    void SetPoint(int X, int Y) { *this = CPoint(X, Y); }
    void Offset(int xOffset, int yOffset) { *this += CSize(xOffset, yOffset); }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }

    BOOL operator==(POINT point) const { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { *this = *this + size; }
    void operator-=(SIZE size) { *this = *this - size; }
    void operator+=(POINT point) { *this = *this + point; }
    void operator-=(POINT point) { *this = CPoint(x - point.x, y - point.y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
};

inline CPoint CSize::operator+(POINT point) const
{
    return CPoint(cx + point.x, cy + point.y);
}

inline CPoint CSize::operator-(POINT point) const
{
    return CPoint(cx - point.x, cy - point.y);
}

/// A rectangle that holds its left and top edge and not its right and bottom one.
class CRect : public tagRECT
{
public:
    CRect() { ::SetRectEmpty(this); }
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& srcRect) { *static_cast<RECT*>(this) = srcRect; }
    CRect(LPCRECT lpSrcRect)
        : CRect(*lpSrcRect)
    {
    }
    CRect(POINT point, SIZE size)
        : CRect(point.x, point.y, point.x + size.cx, point.y + size.cy)
    {
    }
    CRect(POINT topLeft, POINT bottomRight)
        : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y)
    {
    }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT lpRect) const { return ::EqualRect(this, lpRect); }

    void SetRect(int x1, int y1, int x2, int y2) { ::SetRect(this, x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT lpSrcRect) { *this = *lpSrcRect; }

    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT edges)
    {
        InflateRect(edges->left, edges->top, edges->right, edges->bottom);
    }
    void InflateRect(int l, int t, int r, int b)
    {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT edges)
    {
        DeflateRect(edges->left, edges->top, edges->right, edges->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToY(int y) { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }

    /// Exchanges edges that stand the wrong way round.
    void NormalizeRect();

    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) { return ::UnionRect(this, a, b); }
    BOOL SubtractRect(LPCRECT a, LPCRECT b) { return ::SubtractRect(this, a, b); }

    void operator=(const RECT& srcRect) { *static_cast<RECT*>(this) = srcRect; }
    BOOL operator==(const RECT& rect) const { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const { return !(*this == rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(LPCRECT edges) { InflateRect(edges); }
    void operator-=(POINT point) { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT edges) { DeflateRect(edges); }
    void operator&=(const RECT& rect) { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) { ::UnionRect(this, this, &rect); }
    CRect operator+(POINT point) const;
    CRect operator+(SIZE size) const;
    CRect operator-(POINT point) const;
    CRect operator-(SIZE size) const;
    CRect operator&(const RECT& rect) const;
    CRect operator|(const RECT& rect) const;
};
