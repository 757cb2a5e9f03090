#include "skin/BitmapFile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace
{

/// A bitmap file's headers; the rest of the file is only counted.
class CHead
{
public:
    CHead(int32_t width, int32_t height, uint16_t bits)
        : bytes(kBitmapHeadSize)
    {
        bytes[0] = 'B';
        bytes[1] = 'M';
        Set<uint32_t>(10, kBitmapHeadSize);
        Set<uint32_t>(14, 40);
        Set<int32_t>(18, width);
        Set<int32_t>(22, height);
        Set<uint16_t>(26, 1);
        Set<uint16_t>(28, bits);
    }

    CHead& Pixels(uint32_t offset) { return Set<uint32_t>(10, offset); }
    CHead& InfoSize(uint32_t size) { return Set<uint32_t>(14, size); }
    CHead& Planes(uint16_t planes) { return Set<uint16_t>(26, planes); }
    CHead& Compression(uint32_t kind) { return Set<uint32_t>(30, kind); }
    CHead& Colors(uint32_t colors) { return Set<uint32_t>(46, colors); }

    bool WholeIn(uint64_t fileSize) const
    {
        return HoldsWholeBitmap(bytes.data(), bytes.size(), fileSize);
    }

    std::vector<uint8_t> bytes;

private:
    template <typename Value>
    CHead& Set(size_t offset, Value value)
    {
        memcpy(bytes.data() + offset, &value, sizeof(value));
        return *this;
    }
};

} // namespace

TEST(BitmapFile, PixelsMustLieInTheFile)
{
    // 10 pixels of 3 bytes fill 32 bytes a line.
    EXPECT_TRUE(CHead(10, 4, 24).WholeIn(54 + 128));
    EXPECT_TRUE(CHead(10, -4, 24).WholeIn(54 + 128));
    EXPECT_TRUE(CHead(10, 4, 24).WholeIn(54 + 1000));
    EXPECT_FALSE(CHead(10, 4, 24).WholeIn(54 + 127));
    EXPECT_FALSE(CHead(10, -4, 24).WholeIn(54 + 127));
    EXPECT_TRUE(CHead(10, 4, 24).Pixels(100).WholeIn(100 + 128));
    EXPECT_FALSE(CHead(10, 4, 24).Pixels(100).WholeIn(100 + 127));
    EXPECT_FALSE(CHead(10, 4, 24).Pixels(0xFFFFFFFF).WholeIn(54 + 128));
}

TEST(BitmapFile, AbsurdSizesAreRefused)
{
    const int32_t most = 2147483647;
    for (const int32_t height : {most, -most, -most - 1, 1000000})
    {
        EXPECT_FALSE(CHead(most, height, 32).WholeIn(1 << 20)) << height;
        EXPECT_FALSE(CHead(1, height, 1).Colors(2).Pixels(62).WholeIn(1 << 20)) << height;
    }
    EXPECT_FALSE(CHead(most, 1, 32).WholeIn(1 << 20));
    EXPECT_FALSE(CHead(0, 4, 24).WholeIn(1000));
    EXPECT_FALSE(CHead(-10, 4, 24).WholeIn(1000));
    EXPECT_FALSE(CHead(10, 0, 24).WholeIn(1000));
}

TEST(BitmapFile, ColorsMustLieBeforeThePixels)
{
    EXPECT_TRUE(CHead(4, 1, 8).Pixels(54 + 1024).WholeIn(54 + 1024 + 4));
    EXPECT_FALSE(CHead(4, 1, 8).Pixels(54 + 1023).WholeIn(5000));
    EXPECT_TRUE(CHead(4, 1, 8).Colors(2).Pixels(62).WholeIn(66));
    EXPECT_FALSE(CHead(4, 1, 8).Colors(3).Pixels(62).WholeIn(66));
    EXPECT_FALSE(CHead(4, 1, 8).Colors(0xFFFFFFFF).Pixels(62).WholeIn(66));
    EXPECT_FALSE(CHead(4, 1, 24).Pixels(53).WholeIn(5000));
    EXPECT_FALSE(CHead(4, 1, 24).InfoSize(0xFFFFFFFF).WholeIn(5000));
}

TEST(BitmapFile, MasksMustLieBeforeThePixels)
{
    EXPECT_TRUE(CHead(1, 1, 32).Compression(3).Pixels(66).WholeIn(70));
    EXPECT_FALSE(CHead(1, 1, 32).Compression(3).Pixels(65).WholeIn(70));
    // A longer header holds them itself.
    EXPECT_TRUE(CHead(1, 1, 32).Compression(3).InfoSize(108).Pixels(122).WholeIn(126));
}

TEST(BitmapFile, OnlyUncompressedFormatsOfOnePlane)
{
    for (const uint16_t bits : {1, 4, 8, 16, 24, 32})
        EXPECT_TRUE(CHead(1, 1, bits).Pixels(2000).WholeIn(3000)) << bits;
    for (const uint16_t bits : {0, 2, 3, 15, 48, 64, 65535})
        EXPECT_FALSE(CHead(1, 1, bits).Pixels(2000).WholeIn(3000)) << bits;
    for (const uint32_t kind : {1u, 2u, 4u, 5u, 99u})
        EXPECT_FALSE(CHead(1, 1, 8).Compression(kind).Pixels(2000).WholeIn(3000)) << kind;
    EXPECT_FALSE(CHead(1, 1, 24).Compression(3).Pixels(2000).WholeIn(3000));
    EXPECT_FALSE(CHead(1, 1, 24).Planes(0).WholeIn(3000));
    EXPECT_FALSE(CHead(1, 1, 24).InfoSize(12).WholeIn(3000));
}

TEST(BitmapFile, ShortAndForeignFilesAreRefused)
{
    CHead head(1, 1, 24);
    for (size_t size = 0; size < kBitmapHeadSize; ++size)
    {
        const std::vector<uint8_t> part(head.bytes.begin(), head.bytes.begin() + size);
        EXPECT_FALSE(HoldsWholeBitmap(part.data(), part.size(), 3000)) << size;
    }
    head.bytes[1] = 'A';
    EXPECT_FALSE(head.WholeIn(3000));
}
