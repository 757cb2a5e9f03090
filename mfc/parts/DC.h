#pragma once

#include "mfc/parts/GdiObject.h"

class CWnd;

/// A device context. m_hDC takes output, m_hAttribDC answers questions; they are one, unless
/// SetAttribDC parts them. The destructor deletes the context. Objects from FromHandle are
/// temporary and own nothing.
class CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    CDC() = default;
    ~CDC() override;

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;

    operator HDC() const { return GetSafeHdc(); }
    HDC GetSafeHdc() const; ///< null for a null pointer, too
    /// For the framework itself: as above, without a call on a null pointer.
    static HDC HandleOf(const CDC* pDC) { return pDC ? pDC->m_hDC : nullptr; }

    static CDC* FromHandle(HDC hDC);
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC();

    /// A memory context; compatible with the screen for null.
    BOOL CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(HandleOf(pDC))); }
    BOOL DeleteDC();

    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    CWnd* GetWindow() const;

    // Each gives what was selected before, as a temporary object; null on failure.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    CGdiObject* SelectObject(CGdiObject* pObject);
    /// The region is copied; the result is its complexity.
    int SelectObject(CRgn* pRgn);
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;

    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int SetBkMode(int nBkMode);
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags);
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int SetROP2(int nDrawMode);
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetStretchBltMode(int nStretchMode);
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetPolyFillMode(int nPolyFillMode);
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }

    virtual int SetMapMode(int nMapMode);
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint GetViewportOrg() const;
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    virtual CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint GetWindowOrg() const;

    int SelectClipRgn(CRgn* pRgn);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT r)
    {
        return IntersectClipRect(r->left, r->top, r->right, r->bottom);
    }
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT r) { return ExcludeClipRect(r->left, r->top, r->right, r->bottom); }

    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
    {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT r, POINT corner)
    {
        return RoundRect(r->left, r->top, r->right, r->bottom, corner.x, corner.y);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }

    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    /// These leave the background colour set to clr.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }

    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
    {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
    {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop)
    {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                            nSrcHeight, dwRop);
    }
    BOOL TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                        int nSrcWidth, int nSrcHeight, UINT clrTransparent)
    {
        return ::TransparentBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc,
                                nSrcWidth, nSrcHeight, clrTransparent);
    }
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                      DWORD dwMode)
    {
        return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
    }

    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount)
    {
        return ::TextOut(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                            UINT nCount, LPINT lpDxWidths)
    {
        return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                    LPINT lpDxWidths)
    {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()),
                          lpDxWidths);
    }
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
    {
        return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    /// DT_MODIFYSTRING has no effect here: the text is constant.
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
    {
        return DrawText(str, str.GetLength(), lpRect, nFormat & ~DT_MODIFYSTRING);
    }
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const
    {
        return GetOutputTextExtent(str, str.GetLength());
    }
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const
    {
        return ::GetTextMetrics(m_hAttribDC, lpMetrics);
    }
    int GetTextFace(CString& rString) const;

    /// For the handle map: the object is going, its handle lives on.
    static void ForgetHandle(CDC& dc) { dc.m_hDC = dc.m_hAttribDC = nullptr; }

protected:
    /// Selects into the output context and, where it is another, into the attribute context.
    HGDIOBJ SelectBoth(HGDIOBJ hObject);
};

/// Context of a window's client area, of the whole screen for null. The constructors of these
/// throw CResourceException where there is no context.
class CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// Context of a whole window, frame included.
class CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

/// BeginPaint and EndPaint; for a WM_PAINT handler.
class CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {};

protected:
    HWND m_hWnd;
};
