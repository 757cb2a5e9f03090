#include <afxwin.h>

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace
{
CHandleMap<CDC>& Contexts()
{
    return *AfxGetModuleThreadState()->m_deviceContexts;
}

/// Applies a setter to both contexts; the answer of the attribute context counts, if there is one.
template <typename Setter>
auto SetBoth(const CDC& dc, Setter set)
{
    auto previous = set(dc.m_hDC);
    if (dc.m_hAttribDC && dc.m_hAttribDC != dc.m_hDC)
    {
        previous = set(dc.m_hAttribDC);
    }
    return previous;
}

template <typename Setter>
CPoint SetBothPoints(const CDC& dc, Setter set)
{
    return SetBoth(dc,
                   [set](HDC hdc)
                   {
                       CPoint previous;
                       set(hdc, &previous);
                       return previous;
                   });
}
} // namespace

CDC::~CDC()
{
    DeleteDC();
}

HDC CDC::GetSafeHdc() const
{
    return this ? m_hDC : nullptr;
}

CDC* CDC::FromHandle(HDC hDC)
{
    const int level = AfxGetModuleThreadState()->m_tempLevel;
    return Contexts().FindOrMake(hDC, level,
                                 [hDC]()
                                 {
                                     CDC* dc = new CDC;
                                     dc->m_hDC = dc->m_hAttribDC = hDC;
                                     return dc;
                                 });
}

BOOL CDC::Attach(HDC hDC)
{
    ASSERT(m_hDC == nullptr);
    if (!hDC || m_hDC)
    {
        return FALSE;
    }
    m_hDC = hDC;
    Contexts().SetPermanent(hDC, this);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC hDC = m_hDC;
    if (hDC)
    {
        Contexts().RemovePermanent(hDC);
    }
    m_hDC = m_hAttribDC = nullptr;
    return hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    if (m_hDC)
    {
        Contexts().RemovePermanent(m_hDC);
    }
    m_hDC = hDC;
    if (hDC)
    {
        Contexts().SetPermanent(hDC, this);
    }
}

void CDC::ReleaseOutputDC()
{
    SetOutputDC(nullptr);
}

BOOL CDC::DeleteDC()
{
    return m_hDC && ::DeleteDC(Detach());
}

int CDC::SaveDC()
{
    return SetBoth(*this, [](HDC hdc) { return ::SaveDC(hdc); });
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    return SetBoth(*this, [=](HDC hdc) { return ::RestoreDC(hdc, nSavedDC); });
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

HGDIOBJ CDC::SelectBoth(HGDIOBJ hObject)
{
    return hObject ? SetBoth(*this, [=](HDC hdc) { return ::SelectObject(hdc, hObject); })
                   : nullptr;
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return CGdiObject::FromHandle(SelectBoth(::GetStockObject(nIndex)));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(SelectBoth(CGdiObject::HandleOf(pPen))));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(SelectBoth(CGdiObject::HandleOf(pBrush))));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(SelectBoth(CGdiObject::HandleOf(pFont))));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    // A bitmap goes into one context only.
    HGDIOBJ hBitmap = CGdiObject::HandleOf(pBitmap);
    return static_cast<CBitmap*>(
        CGdiObject::FromHandle(hBitmap ? ::SelectObject(m_hDC, hBitmap) : nullptr));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    return CGdiObject::FromHandle(SelectObject(CGdiObject::HandleOf(pObject)));
}

int CDC::SelectObject(CRgn* pRgn)
{
    return SelectClipRgn(pRgn);
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject)
{
    return ::GetObjectType(hObject) == OBJ_BITMAP ? ::SelectObject(m_hDC, hObject)
                                                  : SelectBoth(hObject);
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetBkColor(hdc, crColor); });
}

int CDC::SetBkMode(int nBkMode)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetBkMode(hdc, nBkMode); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetTextColor(hdc, crColor); });
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetTextAlign(hdc, nFlags); });
}

int CDC::SetROP2(int nDrawMode)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetROP2(hdc, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetStretchBltMode(hdc, nStretchMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetPolyFillMode(hdc, nPolyFillMode); });
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    return SetBothPoints(*this, [=](HDC hdc, POINT* p) { ::SetBrushOrgEx(hdc, x, y, p); });
}

int CDC::SetMapMode(int nMapMode)
{
    return SetBoth(*this, [=](HDC hdc) { return ::SetMapMode(hdc, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return SetBothPoints(*this, [=](HDC hdc, POINT* p) { ::SetViewportOrgEx(hdc, x, y, p); });
}

CPoint CDC::GetViewportOrg() const
{
    CPoint point;
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    return SetBothPoints(*this, [=](HDC hdc, POINT* p)
                         { ::OffsetViewportOrgEx(hdc, nWidth, nHeight, p); });
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return SetBothPoints(*this, [=](HDC hdc, POINT* p) { ::SetWindowOrgEx(hdc, x, y, p); });
}

CPoint CDC::GetWindowOrg() const
{
    CPoint point;
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    const HRGN region = static_cast<HRGN>(CGdiObject::HandleOf(pRgn));
    return SetBoth(*this, [=](HDC hdc) { return ::SelectClipRgn(hdc, region); });
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return SetBoth(*this, [=](HDC hdc) { return ::IntersectClipRect(hdc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return SetBoth(*this, [=](HDC hdc) { return ::ExcludeClipRect(hdc, x1, y1, x2, y2); });
}

CPoint CDC::GetCurrentPosition() const
{
    CPoint point;
    ::GetCurrentPositionEx(m_hAttribDC, &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    return SetBothPoints(*this, [=](HDC hdc, POINT* p) { ::MoveToEx(hdc, x, y, p); });
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(CGdiObject::HandleOf(pBrush)));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, static_cast<HBRUSH>(CGdiObject::HandleOf(pBrush)));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    // An opaque empty text: no brush has to be made.
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

void CDC::Draw3dRect(LPCRECT r, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(r->left, r->top, r->right - r->left, r->bottom - r->top, clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize size;
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize size;
    ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &size);
    return size;
}

int CDC::GetTextFace(CString& rString) const
{
    char face[LF_FACESIZE] = "";
    const int length = ::GetTextFace(m_hAttribDC, LF_FACESIZE, face);
    rString = face;
    return length;
}

CClientDC::CClientDC(CWnd* pWnd)
    : m_hWnd(CWnd::HandleOf(pWnd))
{
    if (!Attach(::GetDC(m_hWnd)))
    {
        AfxThrowResourceException();
    }
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd)
    : m_hWnd(CWnd::HandleOf(pWnd))
{
    if (!Attach(::GetWindowDC(m_hWnd)))
    {
        AfxThrowResourceException();
    }
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd)
    : m_hWnd(CWnd::HandleOf(pWnd))
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
    {
        AfxThrowResourceException();
    }
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
