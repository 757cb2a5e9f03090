#include "skin/TabLayout.h"

int HitTab(const std::vector<int>& widths, int x)
{
    int tab = 0;
    int start = 0;
    for (const int width : widths)
    {
        if (start < x && x < start + width)
            return tab;
        start += width;
        ++tab;
    }
    return -1;
}
