// gallery.exe [scale [grids|scroll]]: shows the drawn controls, the grids, or the scroll bars, as on a
// screen of so many times 96 dots an inch.
#include "tools/gallery/GalleryDlg.h"
#include "tools/gallery/GalleryGrids.h"
#include "tools/gallery/ScrollGallery.h"
#include "tools/gallery/resource.h"

#include "skin/SkinCache.h"

#include <afxcmn.h>

#include <cstdlib>
#include <cstring>

class CScrollGalleryDlg : public CDialog
{
public:
    CScrollGalleryDlg()
        : CDialog(IDD_GALLERY)
    {
    }

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        CRect window(CPoint(0, 0), kScrollGallerySize);
        AdjustWindowRectEx(window, GetStyle(), FALSE, GetExStyle());
        SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOZORDER);
        CenterWindow();
        CreateScrollGallery(m_hWnd);
        return TRUE;
    }
};

class CGalleryApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        AfxInitRichEdit2();
        const double scale = atof(m_lpCmdLine);
        if (scale > 0)
            SetUIScale(static_cast<float>(scale));
        if (strstr(m_lpCmdLine, "grids"))
            CGridGalleryDlg().DoModal();
        else if (strstr(m_lpCmdLine, "scroll"))
            CScrollGalleryDlg().DoModal();
        else
            CGalleryDlg().DoModal();
        return FALSE;
    }
};

CGalleryApp theApp;
