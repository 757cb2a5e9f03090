#include "skin/BitmapFile.h"

#include <cstdlib>
#include <cstring>

namespace
{

constexpr uint64_t kFileHeaderSize = 14;
constexpr uint32_t kInfoHeaderSize = 40;
constexpr uint32_t kUncompressed = 0;
constexpr uint32_t kUncompressedWithMasks = 3;
constexpr uint64_t kMasksSize = 12;
constexpr uint64_t kColorSize = 4;

/// The fields of both headers that say where things are.
struct BitmapHead
{
    uint32_t pixels; ///< offset in the file
    uint32_t infoSize;
    int32_t width;
    int32_t height; ///< below 0: the first line is the topmost
    uint16_t planes;
    uint16_t bitsPerPixel;
    uint32_t compression;
    uint32_t colors; ///< 0: as many as the bits can tell apart, where there is a colour table
};

template <typename Value>
Value ReadAt(const uint8_t* bytes, size_t offset)
{
    Value value;
    memcpy(&value, bytes + offset, sizeof(value));
    return value;
}

BitmapHead ReadHead(const uint8_t* head)
{
    return {ReadAt<uint32_t>(head, 10), ReadAt<uint32_t>(head, 14), ReadAt<int32_t>(head, 18),
            ReadAt<int32_t>(head, 22),  ReadAt<uint16_t>(head, 26), ReadAt<uint16_t>(head, 28),
            ReadAt<uint32_t>(head, 30), ReadAt<uint32_t>(head, 46)};
}

bool IsKnownFormat(const BitmapHead& head)
{
    if (head.infoSize < kInfoHeaderSize || head.planes != 1)
        return false;
    switch (head.bitsPerPixel)
    {
    case 1:
    case 4:
    case 8:
    case 24:
        return head.compression == kUncompressed;
    case 16:
    case 32:
        return head.compression == kUncompressed || head.compression == kUncompressedWithMasks;
    default:
        return false;
    }
}

uint64_t ColorsEnd(const BitmapHead& head)
{
    uint64_t end = kFileHeaderSize + head.infoSize;
    if (head.compression == kUncompressedWithMasks && head.infoSize == kInfoHeaderSize)
        end += kMasksSize;
    const bool hasTable = head.bitsPerPixel <= 8;
    const uint64_t colors = hasTable && !head.colors ? 1u << head.bitsPerPixel : head.colors;
    return end + colors * kColorSize;
}

bool PixelsLieIn(const BitmapHead& head, uint64_t fileSize)
{
    if (head.width <= 0 || head.height == 0 || head.pixels > fileSize)
        return false;
    const auto lines = static_cast<uint64_t>(std::llabs(head.height));
    // A line fills whole words of 32 bits.
    const uint64_t line = (static_cast<uint64_t>(head.width) * head.bitsPerPixel + 31) / 32 * 4;
    return lines <= (fileSize - head.pixels) / line;
}

} // namespace

bool HoldsWholeBitmap(const uint8_t* bytes, size_t headSize, uint64_t fileSize)
{
    if (headSize < kBitmapHeadSize || bytes[0] != 'B' || bytes[1] != 'M')
        return false;
    const BitmapHead head = ReadHead(bytes);
    return IsKnownFormat(head) && ColorsEnd(head) <= head.pixels && PixelsLieIn(head, fileSize);
}
