// What holds of the geometry for every input, for the random test and for the fuzzer.
#pragma once

#include "skin/scroll/ButtonLayout.h"

#include <cstdint>
#include <functional>

struct GeometryInput
{
    BarShape shape;
    ScrollPoint mouse;
    ScrollPoint moved;
    ButtonRow row;
    FrameShape frame; // horzHeight and vertWidth are what the bars want
    int code = 0;
};

/// Makes an input of random numbers: some of all sizes, most as bars have them.
GeometryInput MakeGeometryInput(const std::function<uint32_t()>& random);

/// @return what does not hold; null when all does
const char* CheckGeometry(const GeometryInput& input);
