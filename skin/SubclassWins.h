// Swaps the stock controls of a finished dialog for drawn ones.
#pragma once

#include <afxwin.h>

#include <memory>
#include <vector>

/// A dialog that also derives from this hands its window over at the end of its OnInitDialog; its
/// template names stock classes only. The objects live as long as the dialog.
class CSubclassWins
{
public:
    CSubclassWins() = default;
    CSubclassWins(const CSubclassWins&) = delete;
    CSubclassWins& operator=(const CSubclassWins&) = delete;
    virtual ~CSubclassWins();

    /// Attaches a drawn control to each window below `parent`, at any depth, that has a known class
    /// and no object yet. Called once a dialog.
    void SubclassChildren(HWND parent);

    /// The drawn control with an id; null when there is none, also when a stock control has the id.
    CWnd* GetSubclassedCtrl(UINT id) const;

    /// The same for one that the template has for sure, as its class.
    template <class Control>
    Control& Drawn(UINT id) const
    {
        return *static_cast<Control*>(GetSubclassedCtrl(id));
    }

    /// Ends all objects. For the dialog's destructor, when their windows are gone.
    void DestroySubclassedCtrls();

private:
    void SubclassControl(HWND window);

    std::vector<std::unique_ptr<CWnd>> controls; ///< in the order of creation
};
