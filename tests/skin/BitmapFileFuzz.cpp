#include "skin/BitmapFile.h"

#include <cstdlib>

// What is taken for whole in a file stays whole in a longer one.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const size_t head = size < kBitmapHeadSize ? size : kBitmapHeadSize;
    if (HoldsWholeBitmap(data, head, size) && !HoldsWholeBitmap(data, head, size + 1))
        abort();
    return 0;
}
