#include "core/Text.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int PrintToList(char* buffer, size_t capacity, const char* format, va_list arguments)
{
    if (capacity == 0)
        return 0;
    const int length = vsnprintf(buffer, capacity, format, arguments);
    buffer[capacity - 1] = '\0';
    return length < 0 || static_cast<size_t>(length) > capacity ? -1 : length;
}

int PrintTo(char* buffer, size_t capacity, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const int length = PrintToList(buffer, capacity, format, arguments);
    va_end(arguments);
    return length;
}

const char* ReadCsvToken(const char* rest, char* token, size_t capacity)
{
    if (capacity != 0)
        token[0] = '\0';
    if (!rest || *rest == '\0')
        return nullptr;

    const size_t length = strcspn(rest, ",");
    if (length >= capacity)
        return nullptr;
    memcpy(token, rest, length);
    token[length] = '\0';

    const char* end = rest + length;
    return *end == ',' ? end + 1 : end;
}

int ParseInt(const char* text)
{
    const long long value = strtoll(text, nullptr, 10);
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

unsigned int ParseUInt(const char* text)
{
    const long long value = strtoll(text, nullptr, 10);
    return static_cast<unsigned int>(std::clamp<long long>(value, INT_MIN, UINT_MAX));
}

int TruncateToInt(double value)
{
    if (std::isnan(value))
        return 0;
    return static_cast<int>(std::clamp<double>(value, INT_MIN, INT_MAX));
}

std::string FormatDecimal(double value)
{
    char buffer[512]; // the largest double has 309 digits before the point
    PrintTo(buffer, sizeof(buffer), "%.02lf", value);
    return buffer;
}
