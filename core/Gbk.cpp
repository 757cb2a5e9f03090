#include "core/Gbk.h"

namespace
{
bool IsLeadByte(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x81 && value <= 0xFE;
}
} // namespace

size_t GbkCharLength(const char* text)
{
    return IsLeadByte(text[0]) && text[1] != '\0' ? 2 : 1;
}

size_t GbkPrefixLength(const char* text, size_t limit)
{
    size_t length = 0;
    while (length < limit && text[length] != '\0')
    {
        if (length + 1 == limit)
            return IsLeadByte(text[length]) ? length : limit;
        length += GbkCharLength(text + length);
    }
    return length;
}
