// What windows of classes of our own tell assistive software, such as screen readers: the system
// knows nothing of what they draw.
#pragma once

#include <afxwin.h>

#include <string>

/// A part of a drawn window that assistive software meets as one thing: a tab, a row.
struct AccessiblePart
{
    std::string name;
    std::string description;
    CRect place; ///< in client coordinates
};

/// What does not change with the window's content.
struct AccessibleKind
{
    long role;               ///< of the window, one of ROLE_SYSTEM_...
    long partRole = 0;       ///< of each part
    bool isAcross = false;   ///< parts stand side by side, otherwise one below the other
    const char* action = ""; ///< what Press does, in a word
};

/// A drawn window that can tell of itself. Parts are counted from 0; -1 stands for none. No index out
/// of range is ever asked for.
class AccessibleSource
{
public:
    /// Null when the window has ended.
    virtual HWND DrawnWindow() const = 0;
    virtual AccessibleKind Kind() const = 0;
    /// Empty for a window without a name of its own.
    virtual std::string SpokenName() const { return ""; }
    virtual int PartCount() const { return 0; }
    virtual AccessiblePart Part(int) const { return {}; }
    virtual int PartAt(CPoint) const { return -1; }
    virtual int SelectedPart() const { return -1; }
    virtual void SelectPart(int) {}
    /// Does to a part what a click would.
    virtual void PressPart(int) {}

protected:
    ~AccessibleSource() = default;
};

class CAccessibleObject;

/// Belongs into the object of a drawn window and lives as long. What assistive software still holds
/// after that answers every question with an error.
class CAccessibleLink
{
public:
    explicit CAccessibleLink(AccessibleSource& source);
    ~CAccessibleLink();
    CAccessibleLink(const CAccessibleLink&) = delete;
    CAccessibleLink& operator=(const CAccessibleLink&) = delete;

    /// The answer to WM_GETOBJECT; 0 leaves it to the system.
    LRESULT Answer(WPARAM wParam, LPARAM lParam);

    /// Tells that another part is selected and, if the window has the focus, that the focus is there.
    void TellSelection() const;

private:
    void DropObject();
    void TellOfPart(DWORD event) const;

    AccessibleSource& source;
    CAccessibleObject* object = nullptr;
};
