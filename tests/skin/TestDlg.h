// A dialog of chosen stock controls, skinned as the pages do it.
#pragma once

#include "skin/SubclassWins.h"

#include <afxwin.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A text whose pixels have the text's very colour: smoothing touches edges only.
constexpr char kSolidText[] = "■■";

/// A control of a dialog template, in dialog units.
struct TemplateItem
{
    const char* className;
    const char* text;
    DWORD style;
    WORD id;
    short x = 10;
    short y = 10;
    short width = 100;
    short height = 20;
};

// Control styles as the product's templates carry them.
constexpr DWORD kShown = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kComboStyle =
    kShown | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS;
constexpr DWORD kListStyle = kShown | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;

/// A dialog template in memory, in the dialog font of the product.
class CDialogTemplate
{
public:
    CDialogTemplate(DWORD style, short x, short y, short width, short height,
                    const std::vector<TemplateItem>& items);

    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(words.data()); }

private:
    void Add(DWORD value);
    void AddText(const char* text);
    void AlignItem();

    std::vector<WORD> words;
};

class CTestDlg : public CDialog, public CSubclassWins
{
public:
    using Fill = std::function<void(CTestDlg&)>;

    /// Creates and shows the dialog.
    /// @param fill runs after the stock controls are there and before they are swapped
    /// @param x    left edge in dialog units
    explicit CTestDlg(const std::vector<TemplateItem>& items, Fill fill = nullptr, short x = 0);
    ~CTestDlg() override;

    /// A drawn control by its id and class; fails the test when it is another.
    template <typename Control>
    Control& Drawn(UINT id)
    {
        auto* control = dynamic_cast<Control*>(GetSubclassedCtrl(id));
        if (!control)
            MissingControl(id);
        return *control;
    }

    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }

    /// Notifications so far, as pairs of id and code.
    std::vector<std::pair<int, int>> commands;
    HWND lastSender = nullptr;

    int CountCommands(int id, int code) const;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override {}

private:
    [[noreturn]] static void MissingControl(UINT id);

    Fill fill;
};

/// A dialog with one control, of id 100 unless told otherwise.
constexpr WORD kTestId = 100;
