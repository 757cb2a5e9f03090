// What a page's controls have to do with the record and with the keys that the page owns: one line a
// control. Load, save and restore are three walks over the lines, in their order.
#pragma once

#include "core/ParamField.h"

#include <afxwin.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

/// How a combo box without selection is stored.
enum class EmptySelection
{
    StoresZero,
    StoredAsIs, ///< -1, which is 255 in a byte
};

// Limits of edit texts, in characters.
constexpr int kText31 = 31;
constexpr int kText63 = 63;
constexpr int kText127 = 127;
constexpr int kText255 = 255;
constexpr int kText1023 = 1023;

/// One control bound to one field of the record, or to one key that its page owns.
class CBinding
{
public:
    CBinding(CWnd& page, UINT control, const std::string& key);
    virtual ~CBinding() = default;

    /// Record, or the user's file, to control.
    virtual void Load(const TOParam& record) = 0;
    /// Control to record, or to the user's file.
    virtual void Save(TOParam& record) = 0;
    /// Packaged value, or the key table's default, to control. A key that no restore reads leaves the
    /// control as it is.
    void Restore();

    /// The key that restore reads, where it is not the field's name.
    CBinding& RestoredFrom(const std::string& key);
    /// Replaces the restore of a line that deviates.
    CBinding& RestoredBy(std::function<void()> restore);

protected:
    /// Shows the packaged value of `key`.
    virtual void ShowPackaged(const std::string& key) = 0;

    CWnd& m_page;
    const UINT m_control;
    const std::string m_key; // the field's name, or the key that the page owns

private:
    std::string m_restoreKey;
    std::function<void()> m_restore;
};

/// The lines of one page.
class CBindings
{
public:
    /// @param page the dialog that has the controls; its window is needed when the lines are walked
    explicit CBindings(CWnd& page);

    /// A check box and a 32-bit flag: shown checked for any non-zero value, stored as exactly 0 or 1.
    /// A control that the template lacks shows nothing and stores 0.
    CBinding& Flag(UINT control, const ParamField& field);

    /// A combo box whose row is the value.
    CBinding& Index(UINT control, const ParamField& field, EmptySelection empty);

    /// A combo box of two rows and a flag: row 1 for any non-zero value, stored as exactly 0 or 1.
    CBinding& OnOffIndex(UINT control, const ParamField& field);

    /// A combo box whose items carry the value as data. A value without an item leaves the selection;
    /// no selection stores the first item's data, 0 without items.
    CBinding& ItemData(UINT control, const ParamField& field);

    /// An edit with a whole number, stored as at least `minimum`. Restore shows the packaged text as
    /// it is read.
    CBinding& Number(UINT control, const ParamField& field, int textLimit, int minimum = INT32_MIN);

    /// An edit whose number is shown but not taken: `stored` goes to the record.
    CBinding& ShownOnly(UINT control, const ParamField& field, int stored);

    /// An edit in seconds with two decimals, milliseconds in the record.
    CBinding& Seconds(UINT control, const ParamField& field, int textLimit);

    /// An edit with two decimals and a float, stored as at least `minimum`. Restore shows the
    /// packaged text as it is read.
    CBinding& Ratio(UINT control, const ParamField& field, int textLimit,
                    double minimum = std::numeric_limits<float>::lowest());

    /// A check box and a key of the package file that the page owns, "1" or "0" there.
    CBinding& OwnedFlag(UINT control, const char* key);

    /// The same for a key that the client reads into the record: shown from there, where it stays as
    /// it is.
    CBinding& OwnedFlag(UINT control, const ParamField& field);

    /// An edit and a key of the package file that the page owns.
    CBinding& OwnedText(UINT control, const char* key, int textLimit);

    void Load(const TOParam& record);
    /// Nothing without a window, so that a page never shown leaves the record alone.
    void Save(TOParam& record);
    /// Nothing without a window.
    void Restore();

private:
    template <typename TBinding, typename... TArguments>
    CBinding& Add(TArguments&&... arguments);

    CWnd& m_page;
    std::vector<std::unique_ptr<CBinding>> m_lines;
};

/// Shows a text in an edit as it is.
void ShowText(CWnd& page, UINT control, const std::string& text);

/// The text of an edit, cut to `limit` bytes without half a character at its end.
std::string EditText(CWnd& page, UINT control, int limit);

/// Selects the item whose data is `data`; without one the selection stays.
void SelectItemWithData(CComboBox& combo, DWORD_PTR data);
