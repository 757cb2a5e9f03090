// Works the settings window as a trader does, from a thread of its own while the module's window runs
// on the test's thread.
#pragma once

#include <zorvane/ZorvaneInterface.h>

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

/// The window "参数设置", or a dialog that came up over it, as the trader sees it. Every operation waits until the window has done what
/// it set off. A control is named by its id; where pages share ids, the visible one is meant.
class Trader
{
public:
    explicit Trader(HWND window)
        : m_window(window)
    {
    }

    HWND Window() const { return m_window; }
    /// The visible control with this id, the window's own before those of pages, else any, else null.
    HWND Control(int id) const;

    /// A control of the same page as a visible one, also when it is hidden.
    HWND Beside(int visibleId, int id) const
    {
        return GetDlgItem(GetParent(Control(visibleId)), id);
    }

    /// Presses and releases the left button over the middle of a control, at its left side, where a
    /// check box has its mark.
    void Click(int id);
    void ClickWindow(HWND window);
    /// A point of a window's client area, or of the screen when the window is null.
    void ClickAt(HWND window, int x, int y);
    void DoubleClickAt(HWND window, int x, int y);
    /// A click with the right button.
    void RightClickAt(HWND window, int x, int y);
    /// Presses and releases a key with the focus where it is.
    void Key(WORD virtualKey);

    /// Empties a field by keyboard and types a text into it.
    void Type(int id, const std::string& text);
    /// Puts a text into a control at once, as a paste does.
    void SetText(int id, const std::string& text);
    /// Opens a combo box and picks a row by keyboard.
    void Pick(int id, int row);
    /// Presses a spin button's upper or lower half.
    void SpinUp(int id);
    void SpinDown(int id);
    /// Presses the tab at a place of the visible host's strip.
    void SelectTab(int index);
    /// The place of the tab that the visible host's strip marks; -1 for none.
    int MarkedTab() const;
    /// The titles on the visible host's strip from left to right, as a screen reader hears them.
    std::vector<std::string> TabTitles() const;
    /// The window that has the focus.
    HWND Focus() const;

    /// Waits for a message box "提示", reads it and answers it with Return.
    /// @return its text; empty when none comes
    std::string AnswerMessage();

    bool IsChecked(int id) const;
    bool IsEnabled(int id) const { return IsWindowEnabled(Control(id)); }
    bool IsShown(int id) const;
    std::string Text(HWND window) const;
    std::string Text(int id) const { return Text(Control(id)); }
    /// What the labels of a box or a page say, one after the other.
    std::string Message() const;
    /// The selected row of a combo box, -1 for none.
    int Picked(int id) const;
    /// The text of a combo box's row.
    std::string Item(int id, int row) const;
    int ItemCount(int id) const;
    /// True when a visible static of the page on show has this text.
    bool ShowsLabel(const std::string& text) const;

    int ListCount() const;
    int SelectedRow() const;
    void SelectRow(int row);

    /// True while the window is there.
    bool IsOpen() const { return IsWindow(m_window); }
    /// Waits until the window has handled what is queued.
    void Settle() const;

private:
    void PointAt(HWND window, int x, int y) const;

    HWND m_window;
};

/// What stands on the screen at a point of a window's client area.
COLORREF PixelAt(HWND window, int x, int y);

/// Polls until the condition holds; false when it does not within five seconds.
bool WaitUntil(const std::function<bool()>& condition);

/// Waits until a visible window with this title is there; null when it does not come.
HWND WaitForWindow(const char* title);

/// Waits for the dialog that comes up over a window; null when none does.
HWND WaitForPopup(HWND window);

/// Opens the window with the module's DoModal and lets `work` use it. A window that `work` leaves
/// open is closed by its close box and fails the test.
/// @return what DoModal returned
int RunSettingsWindow(TOParam& record, TParamSetPage page,
                      const std::function<void(Trader&)>& work);
