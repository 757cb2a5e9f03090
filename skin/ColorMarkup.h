// Colour tags in message texts. Free of windows.h.
#pragma once

/// Reads the colour tag of a text, such as <COLOR#255000000> for red: three decimal digits each for
/// red, green and blue, of which the lowest eight bits count. Of several tags the last one counts; a
/// text of more than one line has none.
/// @param color receives a COLORREF; left alone when there is no tag
/// @return whether there is a tag
bool ParseColorMarkup(const char* text, unsigned long* color);
