// The geometry of the bars under numbers that the fuzzer chooses.
#include "tests/scroll/GeometryChecks.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto next = [&data, &size]() -> uint32_t
    {
        uint32_t value = 0;
        const size_t taken = size < sizeof value ? size : sizeof value;
        std::memcpy(&value, data, taken);
        data += taken;
        size -= taken;
        return value;
    };
    if (CheckGeometry(MakeGeometryInput(next)))
        abort();
    return 0;
}
