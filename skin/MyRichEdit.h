// A rich edit with a spin button drawn into its frame: the numeric field of the settings pages. It
// keeps no value of its own, its text is the value.
#pragma once

#include "skin/SpinValue.h"

#include <afxcmn.h>

class CMyRichEdit_MyCtrl : public CRichEditCtrl
{
public:
    CMyRichEdit_MyCtrl();
    ~CMyRichEdit_MyCtrl() override;

    /// What a press of the spin button adds or takes, how many decimals it writes, and where it
    /// stops. Text typed by hand is not held to it.
    void SetSpinRange(double step, int decimals, double minValue, double maxValue);

    /// Gives the field its spin button, for good. The up and down arrow keys step the text as well.
    void EnableSpin();

    /// @param mode one of SpinInputMode
    void SetInputMode(int mode);

    /// A spin bitmap of the field's own in place of the skin's: two columns, normal and pressed, by
    /// two rows, up and down. It stays the caller's. Null draws no arrows.
    void SetSpinBitmap(HBITMAP bitmap);

    void SetBackColor(COLORREF color);
    void SetTextColor(COLORREF color);

    /// Centres the one line of text, now and whenever the size changes.
    void CenterTextVertically();

    /// Where the text stands, in client coordinates. Ends the centring.
    void SetFormatRect(const RECT* rect);

    /// The left button goes down at a point of the client area's coordinates: in the spin column it
    /// steps the text, elsewhere nothing happens.
    void SpinClick(CPoint point);

    /// The left button comes up.
    void ReleaseSpin();

protected:
    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* message) override;

    afx_msg int OnCreate(CREATESTRUCT* creation);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnEnable(BOOL enabled);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnChar(UINT key, UINT repeats, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK MouseHook(int code, WPARAM message, LPARAM info);
    static CMyRichEdit_MyCtrl* SpinEditAt(CPoint screenPoint);

    void AskForChanges();
    void MakeRoomForSpin();
    void Step(SpinButton arrow);
    void DrawSpin();
    void DrawArrow(HDC dc, SpinButton arrow);

    bool spinEnabled = false;
    SpinButton spinState = SpinButton::kNone;
    SpinRange range;
    int inputMode = kAnyKey;
    bool centred = false;
    HBITMAP spinBitmap = nullptr;
    int spinWidth = 0;
    int spinHeight = 0;
};
