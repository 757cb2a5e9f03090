#include "tests/window/LayoutChecks.h"

#include "host/Picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace
{

constexpr int kBoxWidth = 16; // the mark of a check box or radio, with its gap

std::string ClassOf(HWND window)
{
    char name[32] = "";
    GetClassNameA(window, name, sizeof(name));
    return name;
}

std::string TextOf(HWND window)
{
    char text[1024] = "";
    SendMessageA(window, WM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(text));
    return text;
}

bool IsClass(HWND window, const char* name)
{
    return _stricmp(ClassOf(window).c_str(), name) == 0;
}

bool IsGroupBox(HWND window)
{
    return IsClass(window, "Button") &&
           (GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

/// What is drawn around other controls.
bool IsFrame(HWND window)
{
    return IsGroupBox(window) || (IsClass(window, "Static") && TextOf(window).empty());
}

/// The rectangle in the coordinates of the parent.
RECT PlaceOf(HWND window)
{
    RECT place;
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

/// How much room a text needs in a control that wraps it, or does not.
SIZE Extent(HWND window, const std::string& text, int wrapWidth)
{
    const HDC dc = GetDC(window);
    // A static that was told no font draws with one of its own, as large as the page's.
    LRESULT font = SendMessageA(window, WM_GETFONT, 0, 0);
    if (!font)
        font = SendMessageA(GetParent(window), WM_GETFONT, 0, 0);
    const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HGDIOBJ>(font));
    RECT area = {0, 0, wrapWidth, 0};
    DrawTextA(dc, text.c_str(), -1, &area,
              DT_CALCRECT | (wrapWidth > 0 ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE));
    SelectObject(dc, old);
    ReleaseDC(window, dc);
    return {area.right, area.bottom};
}

void ExpectNothingClipped(HWND control)
{
    const bool isButton = IsClass(control, "Button");
    if (!isButton && !IsClass(control, "Static"))
        return;
    const std::string text = TextOf(control);
    RECT client;
    GetClientRect(control, &client);
    const SIZE oneLine = Extent(control, text, 0);
    const bool wraps = !isButton && client.bottom >= 2 * oneLine.cy;
    const SIZE needed = wraps ? Extent(control, text, client.right) : oneLine;
    const LONG_PTR type = GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK;
    const bool hasMark = isButton && (type == BS_AUTOCHECKBOX || type == BS_CHECKBOX ||
                                      type == BS_AUTORADIOBUTTON || type == BS_RADIOBUTTON);
    EXPECT_LE(needed.cx + (hasMark ? kBoxWidth : 0), client.right)
        << "'" << text << "', id " << GetDlgCtrlID(control);
    if (!IsGroupBox(control))
    {
        // Of a font that it keeps to itself only the page's twin can be measured.
        const int doubt = SendMessageA(control, WM_GETFONT, 0, 0) ? 0 : 1;
        EXPECT_LE(needed.cy, client.bottom + doubt)
            << "'" << text << "', id " << GetDlgCtrlID(control);
    }
}

std::vector<HWND> VisibleChildren(HWND page)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE)
            children.push_back(child);
    return children;
}

void ExpectNoOverlap(const std::vector<HWND>& children)
{
    for (size_t i = 0; i < children.size(); ++i)
        for (size_t j = i + 1; j < children.size(); ++j)
        {
            if (IsFrame(children[i]) || IsFrame(children[j]))
                continue;
            const RECT a = PlaceOf(children[i]);
            const RECT b = PlaceOf(children[j]);
            RECT common;
            EXPECT_FALSE(IntersectRect(&common, &a, &b))
                << "'" << TextOf(children[i]) << "' id " << GetDlgCtrlID(children[i]) << " and '"
                << TextOf(children[j]) << "' id " << GetDlgCtrlID(children[j]);
        }
}

/// A page that does not scroll shows all of its controls.
void ExpectAllInside(HWND page, const std::vector<HWND>& children)
{
    if (GetWindowLongA(page, GWL_STYLE) & WS_VSCROLL)
        return;
    RECT client;
    GetClientRect(page, &client);
    for (HWND child : children)
    {
        const RECT place = PlaceOf(child);
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= client.right &&
                    place.bottom <= client.bottom)
            << "'" << TextOf(child) << "' id " << GetDlgCtrlID(child);
    }
}

/// What the window's own thread has to do; another thread's windows do it by themselves.
void PumpPending()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
}

} // namespace

void CheckLayout(HWND window)
{
    const std::vector<HWND> children = VisibleChildren(window);
    for (HWND child : children)
        ExpectNothingClipped(child);
    ExpectNoOverlap(children);
    ExpectAllInside(window, children);
}

void LeavePicture(HWND window, const std::string& name)
{
    const char* const folder = getenv("ZORVANE_PICTURES");
    if (!folder)
        return;
    PumpPending();
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_TRUE(SavePicture(window, std::string(folder) + "\\" + name + ".bmp"));
}
