#include "core/Text.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

// Splits any line with a buffer of any size: every field must be the text between its commas.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const size_t capacity = data[0] % 40;
    const std::string line(reinterpret_cast<const char*>(data) + 1, size - 1);
    char* token = new char[capacity];
    for (const char* rest = line.c_str(); rest;)
    {
        const char* const field = rest;
        rest = ReadCsvToken(rest, token, capacity);
        const size_t length = strcspn(field, ",");
        const bool fits = *field != '\0' && length < capacity;
        if (fits != (rest != nullptr))
            abort();
        if (rest && (strlen(token) != length || memcmp(token, field, length) != 0 || rest <= field))
            abort();
    }
    delete[] token;
    return 0;
}
