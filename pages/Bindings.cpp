#include "pages/Bindings.h"

#include "core/Gbk.h"
#include "core/PackageFile.h"
#include "core/ParamKeys.h"
#include "core/Text.h"

#include <algorithm>
#include <cstdlib>

CBinding::CBinding(CWnd& page, UINT control, const std::string& key)
    : m_page(page)
    , m_control(control)
    , m_key(key)
    , m_restoreKey(key)
{
}

CBinding& CBinding::RestoredFrom(const std::string& key)
{
    m_restoreKey = key;
    return *this;
}

CBinding& CBinding::RestoredBy(std::function<void()> restore)
{
    m_restore = std::move(restore);
    return *this;
}

void CBinding::Restore()
{
    if (m_restore)
        m_restore();
    else if (FactoryDefault(m_restoreKey).read != DefaultRead::None)
        ShowPackaged(m_restoreKey);
}

namespace
{

class CCheckBinding : public CBinding
{
public:
    using CBinding::CBinding;

    void ShowPackaged(const std::string& key) override { Show(PackagedInt(key)); }

protected:
    bool IsChecked() const { return m_page.IsDlgButtonChecked(m_control) == BST_CHECKED; }

    void Show(int value)
    {
        m_page.CheckDlgButton(m_control, value != 0 ? BST_CHECKED : BST_UNCHECKED);
    }
};

class CFlagBinding : public CCheckBinding
{
public:
    CFlagBinding(CWnd& page, UINT control, const ParamField& field)
        : CCheckBinding(page, control, field.name)
        , m_field(field)
    {
    }

    void Load(const TOParam& record) override { Show(GetInt(record, m_field)); }
    void Save(TOParam& record) override { SetInt(record, m_field, IsChecked()); }

private:
    const ParamField m_field;
};

class COwnedFlagBinding : public CCheckBinding
{
public:
    using CCheckBinding::CCheckBinding;

    void Load(const TOParam&) override { Show(UserInt(m_key.c_str())); }
    void Save(TOParam&) override { StorePackageKey(m_key.c_str(), IsChecked() ? "1" : "0"); }
};

class CRecordedFlagBinding : public COwnedFlagBinding
{
public:
    CRecordedFlagBinding(CWnd& page, UINT control, const ParamField& field)
        : COwnedFlagBinding(page, control, field.name)
        , m_field(field)
    {
    }

    void Load(const TOParam& record) override { Show(GetInt(record, m_field)); }

private:
    const ParamField m_field;
};

class CComboBinding : public CBinding
{
public:
    CComboBinding(CWnd& page, UINT control, const ParamField& field)
        : CBinding(page, control, field.name)
        , m_field(field)
    {
    }

    void Load(const TOParam& record) override { Show(GetInt(record, m_field)); }
    void ShowPackaged(const std::string& key) override { Show(PackagedInt(key)); }

protected:
    virtual void Show(int value) = 0;

    const ParamField m_field;

    CComboBox& Combo() { return *static_cast<CComboBox*>(m_page.GetDlgItem(m_control)); }

    /// A row that the list lacks selects none.
    void Select(int row)
    {
        Combo().SetCurSel(row < Combo().GetCount() ? row : -1);
        Combo().Invalidate();
    }
};

class CIndexBinding : public CComboBinding
{
public:
    CIndexBinding(CWnd& page, UINT control, const ParamField& field, EmptySelection empty)
        : CComboBinding(page, control, field)
        , m_empty(empty)
    {
    }

    void Save(TOParam& record) override
    {
        const int row = Combo().GetCurSel();
        SetInt(record, m_field, row < 0 && m_empty == EmptySelection::StoresZero ? 0 : row);
    }

private:
    void Show(int value) override { Select(value); }

    const EmptySelection m_empty;
};

class COnOffIndexBinding : public CComboBinding
{
public:
    using CComboBinding::CComboBinding;

    void Save(TOParam& record) override { SetInt(record, m_field, Combo().GetCurSel() == 1); }

private:
    void Show(int value) override { Select(value != 0); }
};

class CItemDataBinding : public CComboBinding
{
public:
    using CComboBinding::CComboBinding;

    void Save(TOParam& record) override
    {
        const int row = std::max(Combo().GetCurSel(), 0);
        const bool hasItems = Combo().GetCount() > 0;
        SetInt(record, m_field, hasItems ? static_cast<int>(Combo().GetItemData(row)) : 0);
    }

private:
    void Show(int value) override { SelectItemWithData(Combo(), value); }
};

class CEditBinding : public CBinding
{
public:
    CEditBinding(CWnd& page, UINT control, const std::string& key, int textLimit)
        : CBinding(page, control, key)
        , m_textLimit(textLimit)
    {
    }

    void ShowPackaged(const std::string& key) override { Show(PackagedText(key)); }

protected:
    std::string Text() const { return EditText(m_page, m_control, m_textLimit); }
    void Show(const std::string& text) { ShowText(m_page, m_control, text); }

private:
    const int m_textLimit;
};

class COwnedTextBinding : public CEditBinding
{
public:
    using CEditBinding::CEditBinding;

    void Load(const TOParam&) override { Show(UserText(m_key.c_str())); }
    void Save(TOParam&) override { StorePackageKey(m_key.c_str(), Text()); }
};

class CFieldEditBinding : public CEditBinding
{
public:
    CFieldEditBinding(CWnd& page, UINT control, const ParamField& field, int textLimit)
        : CEditBinding(page, control, field.name, textLimit)
        , m_field(field)
    {
    }

protected:
    const ParamField m_field;
};

class CNumberBinding : public CFieldEditBinding
{
public:
    CNumberBinding(CWnd& page, UINT control, const ParamField& field, int textLimit, int minimum)
        : CFieldEditBinding(page, control, field, textLimit)
        , m_minimum(minimum)
    {
    }

    void Load(const TOParam& record) override
    {
        const int value = GetInt(record, m_field);
        Show(m_field.type == FieldType::UInt32 ? std::to_string(static_cast<uint32_t>(value))
                                               : std::to_string(value));
    }

    void Save(TOParam& record) override
    {
        const std::string text = Text();
        // A large volume that the trader left alone comes back as it was.
        const int value = m_field.type == FieldType::UInt32
                              ? static_cast<int>(ParseUInt(text.c_str()))
                              : ParseInt(text.c_str());
        SetInt(record, m_field, std::max(value, m_minimum));
    }

private:
    const int m_minimum;
};

class CShownOnlyBinding : public CNumberBinding
{
public:
    CShownOnlyBinding(CWnd& page, UINT control, const ParamField& field, int stored)
        : CNumberBinding(page, control, field, kText63, INT32_MIN)
        , m_stored(stored)
    {
    }

    void Save(TOParam& record) override { SetInt(record, m_field, m_stored); }

private:
    const int m_stored;
};

class CSecondsBinding : public CFieldEditBinding
{
public:
    using CFieldEditBinding::CFieldEditBinding;

    void Load(const TOParam& record) override
    {
        Show(FormatDecimal(GetInt(record, m_field) / 1000.0));
    }

    void Save(TOParam& record) override
    {
        SetInt(record, m_field, TruncateToInt(atof(Text().c_str()) * 1000.0));
    }
};

class CRatioBinding : public CFieldEditBinding
{
public:
    CRatioBinding(CWnd& page, UINT control, const ParamField& field, int textLimit, double minimum)
        : CFieldEditBinding(page, control, field, textLimit)
        , m_minimum(static_cast<float>(minimum))
    {
    }

    void Load(const TOParam& record) override { Show(FormatDecimal(GetFloat(record, m_field))); }

    void Save(TOParam& record) override
    {
        const float value = static_cast<float>(atof(Text().c_str()));
        // Text that is no number counts as 0, "nan" among it.
        SetFloat(record, m_field, value >= m_minimum ? value : m_minimum);
    }

private:
    const float m_minimum;
};

} // namespace

CBindings::CBindings(CWnd& page)
    : m_page(page)
{
}

template <typename TBinding, typename... TArguments>
CBinding& CBindings::Add(TArguments&&... arguments)
{
    m_lines.push_back(std::make_unique<TBinding>(m_page, std::forward<TArguments>(arguments)...));
    return *m_lines.back();
}

CBinding& CBindings::Flag(UINT control, const ParamField& field)
{
    return Add<CFlagBinding>(control, field);
}

CBinding& CBindings::Index(UINT control, const ParamField& field, EmptySelection empty)
{
    return Add<CIndexBinding>(control, field, empty);
}

CBinding& CBindings::OnOffIndex(UINT control, const ParamField& field)
{
    return Add<COnOffIndexBinding>(control, field);
}

CBinding& CBindings::ItemData(UINT control, const ParamField& field)
{
    return Add<CItemDataBinding>(control, field);
}

CBinding& CBindings::Number(UINT control, const ParamField& field, int textLimit, int minimum)
{
    return Add<CNumberBinding>(control, field, textLimit, minimum);
}

CBinding& CBindings::ShownOnly(UINT control, const ParamField& field, int stored)
{
    return Add<CShownOnlyBinding>(control, field, stored);
}

CBinding& CBindings::Seconds(UINT control, const ParamField& field, int textLimit)
{
    return Add<CSecondsBinding>(control, field, textLimit);
}

CBinding& CBindings::Ratio(UINT control, const ParamField& field, int textLimit, double minimum)
{
    return Add<CRatioBinding>(control, field, textLimit, minimum);
}

CBinding& CBindings::OwnedFlag(UINT control, const char* key)
{
    return Add<COwnedFlagBinding>(control, key);
}

CBinding& CBindings::OwnedFlag(UINT control, const ParamField& field)
{
    return Add<CRecordedFlagBinding>(control, field);
}

CBinding& CBindings::OwnedText(UINT control, const char* key, int textLimit)
{
    return Add<COwnedTextBinding>(control, key, textLimit);
}

void CBindings::Load(const TOParam& record)
{
    for (const auto& line : m_lines)
        line->Load(record);
}

void CBindings::Save(TOParam& record)
{
    if (!m_page.GetSafeHwnd())
        return;
    for (const auto& line : m_lines)
        line->Save(record);
}

void CBindings::Restore()
{
    if (!m_page.GetSafeHwnd())
        return;
    for (const auto& line : m_lines)
        line->Restore();
}

void ShowText(CWnd& page, UINT control, const std::string& text)
{
    // A whole text that looks like a formatted one, a rich edit would read as that. It takes an
    // insertion as it is.
    page.SetDlgItemText(control, "");
    page.SendDlgItemMessage(control, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
    page.SendDlgItemMessage(control, EM_SETSEL, 0, 0);
}

std::string EditText(CWnd& page, UINT control, int limit)
{
    // One byte more than needed, so that a character cut by the control itself lies behind the limit.
    std::string text(limit + 2, '\0');
    page.GetDlgItemText(control, text.data(), limit + 2);
    text.resize(GbkPrefixLength(text.c_str(), limit));
    return text;
}

void SelectItemWithData(CComboBox& combo, DWORD_PTR data)
{
    for (int row = 0; row < combo.GetCount(); ++row)
    {
        if (combo.GetItemData(row) != data)
            continue;
        combo.SetCurSel(row);
        combo.Invalidate();
        return;
    }
}
