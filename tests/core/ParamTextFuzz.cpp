// Any text read into any field, written again and read again, must settle.
#include "core/ParamKeys.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const ParamKey& key = ParamKeys()[data[0] % ParamKeys().size()];
    const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);

    TOParam record = {};
    ParseParam(record, key, text);
    TOParam again = {};
    ParseParam(again, key, FormatParam(record, key));
    // A delay or a ratio is rounded at the first writing; from then on nothing changes.
    if (FormatParam(again, key) != FormatParam(record, key))
        abort();
    return 0;
}
