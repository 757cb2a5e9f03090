#pragma once

#include "mfc/parts/Geometry.h"
#include "mfc/parts/Object.h"
#include "mfc/parts/String.h"

class CBitmap;
class CDC;

/// Owner of a GDI object, which its destructor deletes. Objects from FromHandle are temporary:
/// they own nothing and must not be kept beyond the message at hand.
class CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr;

    operator HGDIOBJ() const { return GetSafeHandle(); }
    HGDIOBJ GetSafeHandle() const; ///< null for a null pointer, too
    /// For the framework itself: as above, without a call on a null pointer.
    static HGDIOBJ HandleOf(const CGdiObject* pObject)
    {
        return pObject ? pObject->m_hObject : nullptr;
    }

    /// The object attached to this handle, or else a temporary one of the fitting class; null for
    /// null.
    static CGdiObject* FromHandle(HGDIOBJ hObject);

    /// Takes a handle over. FALSE: none given, or the object holds one already.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle out of its hands.
    HGDIOBJ Detach();
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const;
    BOOL operator==(const CGdiObject& obj) const { return m_hObject == obj.m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return m_hObject != obj.m_hObject; }

    /// For the handle map: the object is going, its handle lives on.
    static void ForgetHandle(CGdiObject& object) { object.m_hObject = nullptr; }
};

class CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    /// Throws CResourceException when the pen can't be made.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }
    static CPen* FromHandle(HPEN hPen);

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
};

class CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    /// These throw CResourceException when the brush can't be made.
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }
    static CBrush* FromHandle(HBRUSH hBrush);

    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor)
    {
        return Attach(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont() = default;

    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }
    static CFont* FromHandle(HFONT hFont);

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont)
    {
        return Attach(::CreateFontIndirect(lpLogFont));
    }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    LPCTSTR lpszFacename)
    {
        return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                                   bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                                   nQuality, nPitchAndFamily, lpszFacename));
    }
    /// nPointSize in tenths of a point, for the device (the screen without one).
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /// As above; lfHeight holds the size in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() = default;

    operator HBITMAP() const { return static_cast<HBITMAP>(GetSafeHandle()); }
    static CBitmap* FromHandle(HBITMAP hBitmap);

    /// From the module's resources.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
    {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
};

class CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() = default;

    operator HRGN() const { return static_cast<HRGN>(GetSafeHandle()); }
    static CRgn* FromHandle(HRGN hRgn);

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2)
    {
        return Attach(::CreateRectRgn(x1, y1, x2, y2));
    }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode)
    {
        return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT r) { SetRectRgn(r->left, r->top, r->right, r->bottom); }
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }
    BOOL EqualRgn(const CRgn* pRgn) const { return ::EqualRgn(*this, *pRgn); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
};
