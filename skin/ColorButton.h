// A flat push button in colours of the page's choice: the OK and the Cancel of every dialog.
#pragma once

#include "skin/BlackButton.h"

class CColorButton : public CBlackButton
{
public:
    CColorButton();

    void SetBackColors(COLORREF normal, COLORREF hover, COLORREF pressed);

    /// Mind the order: it differs from that of the back colours.
    void SetTextColors(COLORREF normal, COLORREF pressed, COLORREF hover);

    /// The caption's font. @param name cut to 31 bytes; empty takes the parent's font
    /// @param height as CreateFontA takes it, at 96 dots an inch  @param weight 400 normal, 700 bold
    void SetFace(const char* name, int height, int weight);

    void DrawItem(LPDRAWITEMSTRUCT item) override;

private:
    HFONT MakeFont() const;

    COLORREF backColors[3];  ///< normal, hover, pressed
    COLORREF textColors2[3]; ///< normal, pressed, hover
    char faceName[32] = "";
    int fontHeight = 0;
    int fontWeight = FW_NORMAL;
};
