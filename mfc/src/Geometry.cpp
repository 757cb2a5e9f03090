#include <afx.h>

#include <utility>

void CRect::NormalizeRect()
{
    if (left > right)
    {
        std::swap(left, right);
    }
    if (top > bottom)
    {
        std::swap(top, bottom);
    }
}

CRect CRect::operator+(POINT point) const
{
    CRect rect(*this);
    rect += point;
    return rect;
}

CRect CRect::operator+(SIZE size) const
{
    CRect rect(*this);
    rect += size;
    return rect;
}

CRect CRect::operator-(POINT point) const
{
    CRect rect(*this);
    rect -= point;
    return rect;
}

CRect CRect::operator-(SIZE size) const
{
    CRect rect(*this);
    rect -= size;
    return rect;
}

CRect CRect::operator&(const RECT& rect) const
{
    CRect result(*this);
    result &= rect;
    return result;
}

CRect CRect::operator|(const RECT& rect) const
{
    CRect result(*this);
    result |= rect;
    return result;
}
