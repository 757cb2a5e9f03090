#include "skin/grid/GridText.h"

#include "core/Gbk.h"

#include <algorithm>
#include <cstring>

void CopyCellText(char (&buffer)[kCellTextCapacity], const char* text)
{
    if (!text)
        text = "";
    const size_t length = GbkPrefixLength(text, kCellTextCapacity - 1);
    memmove(buffer, text, length);
    buffer[length] = '\0';
}

int KeptCharacters(int cellWidth, int sampleWidth)
{
    constexpr int kRoomForDots = 3;
    if (cellWidth <= 0 || sampleWidth <= 0)
        return 0;
    return std::max(cellWidth / sampleWidth - kRoomForDots, 0);
}
