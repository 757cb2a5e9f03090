// gallery.exe [scale [grids]]: shows the drawn controls, or the grids, as on a screen of so many times
// 96 dots an inch.
#include "tools/gallery/GalleryDlg.h"
#include "tools/gallery/GalleryGrids.h"

#include "skin/SkinCache.h"

#include <afxcmn.h>

#include <cstdlib>
#include <cstring>

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
        else
            CGalleryDlg().DoModal();
        return FALSE;
    }
};

CGalleryApp theApp;
