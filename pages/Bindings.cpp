#include "pages/Bindings.h"

#include "core/PackageFile.h"
#include "core/ParamKeys.h"
#include "core/Text.h"

#include <algorithm>
#include <cstdlib>

CBinding::CBinding(CWnd& page, UINT control, const ParamField& field)
    : m_page(page)
    , m_control(control)
    , m_field(field)
    , m_restoreKey(field.name)
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

class CFlagBinding : public CBinding
{
public:
    using CBinding::CBinding;

    void Load(const TOParam& record) override { Show(GetInt(record, m_field)); }

    void Save(TOParam& record) override
    {
        SetInt(record, m_field, m_page.IsDlgButtonChecked(m_control) == BST_CHECKED);
    }

    void ShowPackaged(const std::string& key) override { Show(PackagedInt(key)); }

private:
    void Show(int value)
    {
        m_page.CheckDlgButton(m_control, value != 0 ? BST_CHECKED : BST_UNCHECKED);
        m_page.GetDlgItem(m_control)->Invalidate();
    }
};

class CComboBinding : public CBinding
{
public:
    using CBinding::CBinding;

    void Load(const TOParam& record) override { Show(GetInt(record, m_field)); }
    void ShowPackaged(const std::string& key) override { Show(PackagedInt(key)); }

protected:
    virtual void Show(int value) = 0;

    CComboBox& Combo() { return *static_cast<CComboBox*>(m_page.GetDlgItem(m_control)); }

    void Select(int row)
    {
        Combo().SetCurSel(row);
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
    CEditBinding(CWnd& page, UINT control, const ParamField& field, int textLimit)
        : CBinding(page, control, field)
        , m_textLimit(textLimit)
    {
    }

    void ShowPackaged(const std::string& key) override { Show(PackagedText(key)); }

protected:
    std::string Text() const { return EditText(m_page, m_control, m_textLimit); }
    void Show(const std::string& text) { m_page.SetDlgItemText(m_control, text.c_str()); }

private:
    const int m_textLimit;
};

class CNumberBinding : public CEditBinding
{
public:
    CNumberBinding(CWnd& page, UINT control, const ParamField& field, int textLimit, int minimum)
        : CEditBinding(page, control, field, textLimit)
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
        SetInt(record, m_field, std::max(ParseInt(Text().c_str()), m_minimum));
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

class CSecondsBinding : public CEditBinding
{
public:
    using CEditBinding::CEditBinding;

    void Load(const TOParam& record) override
    {
        Show(FormatDecimal(GetInt(record, m_field) / 1000.0));
    }

    void Save(TOParam& record) override
    {
        SetInt(record, m_field, TruncateToInt(atof(Text().c_str()) * 1000.0));
    }
};

class CRatioBinding : public CEditBinding
{
public:
    CRatioBinding(CWnd& page, UINT control, const ParamField& field, int textLimit, double minimum)
        : CEditBinding(page, control, field, textLimit)
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

void CBindings::Load(const TOParam& record)
{
    for (const auto& line : m_lines)
        line->Load(record);
}

void CBindings::Save(TOParam& record)
{
    for (const auto& line : m_lines)
        line->Save(record);
}

void CBindings::Restore()
{
    for (const auto& line : m_lines)
        line->Restore();
}

std::string EditText(CWnd& page, UINT control, int limit)
{
    std::string text(limit + 1, '\0');
    page.GetDlgItemText(control, text.data(), limit + 1);
    text.resize(strlen(text.c_str()));
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
