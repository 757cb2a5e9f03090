#include <afxwin.h>

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace
{
CHandleMap<CGdiObject>& Objects()
{
    return *AfxGetModuleThreadState()->m_gdiObjects;
}

CGdiObject* NewObjectFor(HGDIOBJ handle)
{
    switch (::GetObjectType(handle))
    {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}
} // namespace

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return this ? m_hObject : nullptr;
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject)
{
    const int level = AfxGetModuleThreadState()->m_tempLevel;
    return Objects().FindOrMake(hObject, level,
                                [hObject]()
                                {
                                    CGdiObject* object = NewObjectFor(hObject);
                                    object->m_hObject = hObject;
                                    return object;
                                });
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    ASSERT(m_hObject == nullptr);
    if (!hObject || m_hObject)
    {
        return FALSE;
    }
    m_hObject = hObject;
    Objects().SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ handle = m_hObject;
    if (handle)
    {
        Objects().RemovePermanent(handle);
        m_hObject = nullptr;
    }
    return handle;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject && ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return ::GetObject(m_hObject, nCount, lpObject);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
    {
        AfxThrowResourceException();
    }
}

CPen* CPen::FromHandle(HPEN hPen)
{
    return static_cast<CPen*>(CGdiObject::FromHandle(hPen));
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
    {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
    {
        AfxThrowResourceException();
    }
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap))
    {
        AfxThrowResourceException();
    }
}

CBrush* CBrush::FromHandle(HBRUSH hBrush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(CGdiObject::HandleOf(pBitmap))));
}

CFont* CFont::FromHandle(HFONT hFont)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    ::lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    const HDC dc = pDC ? pDC->m_hAttribDC : ::GetDC(nullptr);
    // Through logical units of the context, so that its mapping mode counts.
    POINT height = {0, ::MulDiv(lpLogFont->lfHeight, ::GetDeviceCaps(dc, LOGPIXELSY), 720)};
    POINT origin = {0, 0};
    ::DPtoLP(dc, &height, 1);
    ::DPtoLP(dc, &origin, 1);
    if (!pDC)
    {
        ::ReleaseDC(nullptr, dc);
    }
    LOGFONT font = *lpLogFont;
    font.lfHeight = -std::abs(height.y - origin.y);
    return CreateFontIndirect(&font);
}

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    return Attach(
        ::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(CDC::HandleOf(pDC), nWidth, nHeight));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits)
{
    return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    CSize previous;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const
{
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CRgn* CRgn::FromHandle(HRGN hRgn)
{
    return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(*this, static_cast<HRGN>(CGdiObject::HandleOf(pRgn1)),
                        static_cast<HRGN>(CGdiObject::HandleOf(pRgn2)), nCombineMode);
}
