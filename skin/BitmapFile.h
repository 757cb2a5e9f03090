// Whether a file is a bitmap that may be handed to the system's loader. Free of windows.h.
#pragma once

#include <cstddef>
#include <cstdint>

/// How much of a file HoldsWholeBitmap needs to see.
constexpr size_t kBitmapHeadSize = 54;

/// True for an uncompressed bitmap file whose colours and pixels all lie in the file. There are
/// loaders that believe the header, and read beyond the end of a file that was cut.
/// @param head     the first bytes of the file, kBitmapHeadSize of them or the whole shorter file
/// @param fileSize bytes of the file
bool HoldsWholeBitmap(const uint8_t* head, size_t headSize, uint64_t fileSize);
