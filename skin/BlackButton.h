// A dark push button with a vertical gradient, which draws itself.
#pragma once

#include "skin/Palette.h"
#include "skin/SkinLayout.h"

#include <afxwin.h>

/// Takes over a stock push button and makes it owner-drawn. Return and space press it as they press
/// a stock one.
class CBlackButton : public CButton
{
public:
    CBlackButton();

    void SetGradient(COLORREF top, COLORREF bottom, COLORREF newPressedTop,
                     COLORREF newPressedBottom, COLORREF newThirdTop, COLORREF newThirdBottom);

    /// @param color kNoColor works the colour out from the face
    void SetCaptionColor(COLORREF color);

    /// @param disabled true shows the button as disabled and deaf to the mouse, without disabling its
    ///                 window
    void SetEnabledLook(bool disabled);

    void DrawItem(LPDRAWITEMSTRUCT item) override;

    /// Draws the gradient and the edge for the current state.
    virtual void DrawButtonFace(HDC dc);

    /// Writes a caption centred on a point.
    virtual void DrawCaption(HDC dc, int x, int y, const char* caption, COLORREF color);

protected:
    void PreSubclassWindow() override;

    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnKillFocus(CWnd* wnd);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnSetStyle(WPARAM style, LPARAM redraw);
    DECLARE_MESSAGE_MAP()

    bool HasFocus() const;
    void Redraw();

    COLORREF captionColor = kNoColor; ///< above 0xFFFFFF: worked out from the face
    COLORREF normalTop = kDarkButtonTop;
    COLORREF normalBottom = kDarkButtonBottom;
    COLORREF pressedTop = kDarkButtonPressedTop;
    COLORREF pressedBottom = kDarkButtonPressedBottom;
    COLORREF thirdTop = kDarkButtonThirdTop;
    COLORREF thirdBottom = kDarkButtonThirdBottom;
    ButtonState state = ButtonState::Normal;
    bool tracking = false; ///< the system was asked to tell when the mouse leaves
    CString text;
    RECT rect = {};          ///< where the button was last drawn
    COLORREF spareColors[3]; ///< for derived buttons; nothing here reads them

private:
    void Advance(ButtonEvent event);
    void TakeFocus();
};
