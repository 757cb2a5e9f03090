// gallery.exe [scale]: shows the drawn controls as on a screen of so many times 96 dots an inch.
#include "tools/gallery/GalleryDlg.h"

#include "skin/SkinCache.h"

#include <afxcmn.h>

#include <cstdlib>

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
        CGalleryDlg gallery;
        gallery.DoModal();
        return FALSE;
    }
};

CGalleryApp theApp;
