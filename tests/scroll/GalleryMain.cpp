// Shows the gallery of scroll bars until it is closed.
#include "tests/scroll/ScrollGallery.h"

int main()
{
    const HWND gallery = CreateScrollGallery(nullptr, {20, 20, 1220, 840});
    MSG message;
    while (IsWindow(gallery) && GetMessageA(&message, nullptr, 0, 0) > 0)
    {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
