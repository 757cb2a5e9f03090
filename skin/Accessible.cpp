#include "skin/Accessible.h"

#include <objbase.h>
#include <oleacc.h>

#include <atomic>

namespace
{

constexpr UINT kCodePage = 936;

template <typename Function>
Function* Load(const char* file, const char* name)
{
    char path[MAX_PATH] = "";
    const UINT length = GetSystemDirectoryA(path, MAX_PATH);
    if (length == 0 || length + strlen(file) + 2 > MAX_PATH)
        return nullptr;
    strcat(strcat(path, "\\"), file);
    const HMODULE library = LoadLibraryA(path);
    return library
               ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)))
               : nullptr;
}

/// Loaded at the first question of a reader: most traders have none, and these libraries would make
/// up most of the time that the module takes to load.
struct SystemCalls
{
    decltype(CreateStdAccessibleObject)* createStandard =
        Load<decltype(CreateStdAccessibleObject)>("oleacc.dll", "CreateStdAccessibleObject");
    decltype(LresultFromObject)* toResult =
        Load<decltype(LresultFromObject)>("oleacc.dll", "LresultFromObject");
    decltype(SysAllocString)* allocate =
        Load<decltype(SysAllocString)>("oleaut32.dll", "SysAllocString");

    bool AreThere() const { return createStandard && toResult && allocate; }
};

const SystemCalls& System()
{
    static const SystemCalls calls;
    return calls;
}

/// A new string for the caller. @return S_FALSE and null for an empty text
HRESULT GiveText(const std::string& text, BSTR* out)
{
    if (text.empty())
        return S_FALSE;
    std::wstring wide(text.size(), L'\0');
    wide.resize(MultiByteToWideChar(kCodePage, 0, text.data(), static_cast<int>(text.size()),
                                    wide.data(), static_cast<int>(wide.size())));
    *out = System().allocate(wide.c_str());
    return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT GiveNumber(long number, VARIANT* out)
{
    out->vt = VT_I4;
    out->lVal = number;
    return S_OK;
}

HRESULT GiveNothing(VARIANT* out)
{
    out->vt = VT_EMPTY;
    return S_FALSE;
}

} // namespace

/// The object that assistive software talks to. What is true of any window it leaves to the system's
/// own object.
class CAccessibleObject final : public IAccessible
{
public:
    CAccessibleObject(AccessibleSource& source, IAccessible* standard)
        : source(&source)
        , window(source.DrawnWindow())
        , standard(standard)
    {
    }

    void CutOff() { source = nullptr; }
    bool IsCutOff() const { return !source || source->DrawnWindow() != window; }

    STDMETHODIMP QueryInterface(REFIID id, void** out) override
    {
        if (!out)
            return E_POINTER;
        *out = nullptr;
        if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch) && id != __uuidof(IAccessible))
            return E_NOINTERFACE;
        AddRef();
        *out = static_cast<IAccessible*>(this);
        return S_OK;
    }

    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }

    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --references;
        if (left == 0)
            delete this;
        return left;
    }

    // No reader calls by name.
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                        UINT*) override
    {
        return E_NOTIMPL;
    }

    STDMETHODIMP get_accParent(IDispatch** out) override
    {
        return IsCutOff() ? CO_E_OBJNOTCONNECTED : standard->get_accParent(out);
    }

    STDMETHODIMP get_accChildCount(long* out) override
    {
        if (!out)
            return E_INVALIDARG;
        *out = 0;
        if (IsCutOff())
            return CO_E_OBJNOTCONNECTED;
        *out = source->PartCount();
        return S_OK;
    }

    STDMETHODIMP get_accChild(VARIANT child, IDispatch** out) override
    {
        if (!out)
            return E_INVALIDARG;
        *out = nullptr;
        // A part is no object of its own.
        int part;
        const HRESULT result = Find(child, &part);
        return result == S_OK ? S_FALSE : result;
    }

    STDMETHODIMP get_accName(VARIANT child, BSTR* out) override
    {
        int part;
        const HRESULT result = Begin(child, out, &part);
        if (result != S_OK)
            return result;
        return GiveText(part < 0 ? source->SpokenName() : source->Part(part).name, out);
    }

    STDMETHODIMP get_accDescription(VARIANT child, BSTR* out) override
    {
        int part;
        const HRESULT result = Begin(child, out, &part);
        if (result != S_OK)
            return result;
        return GiveText(part < 0 ? "" : source->Part(part).description, out);
    }

    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* out) override
    {
        int part;
        const HRESULT result = Begin(child, out, &part);
        if (result != S_OK)
            return result;
        return GiveText(part < 0 ? "" : source->Kind().action, out);
    }

    STDMETHODIMP get_accValue(VARIANT child, BSTR* out) override { return GiveNoText(child, out); }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* out) override { return GiveNoText(child, out); }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* out) override
    {
        return GiveNoText(child, out);
    }

    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT, long* topic) override
    {
        if (!file || !topic)
            return E_INVALIDARG;
        *file = nullptr;
        *topic = 0;
        return S_FALSE;
    }

    STDMETHODIMP get_accRole(VARIANT child, VARIANT* out) override
    {
        int part;
        const HRESULT result = Begin(child, out, &part);
        if (result != S_OK)
            return result;
        const AccessibleKind kind = source->Kind();
        return GiveNumber(part < 0 ? kind.role : kind.partRole, out);
    }

    STDMETHODIMP get_accState(VARIANT child, VARIANT* out) override
    {
        int part;
        HRESULT result = Begin(child, out, &part);
        if (result != S_OK)
            return result;
        VARIANT own = {};
        result = standard->get_accState(Self(), &own);
        if (FAILED(result))
            return result;
        return GiveNumber(part < 0 ? own.lVal : StateOf(part, own.lVal), out);
    }

    STDMETHODIMP get_accFocus(VARIANT* out) override
    {
        const HRESULT result = Begin(Self(), out, nullptr);
        if (result != S_OK)
            return result;
        return GetFocus() == window ? GiveNumber(ChildOf(source->SelectedPart()), out)
                                    : GiveNothing(out);
    }

    STDMETHODIMP get_accSelection(VARIANT* out) override
    {
        const HRESULT result = Begin(Self(), out, nullptr);
        if (result != S_OK)
            return result;
        return GivePart(source->SelectedPart(), out);
    }

    STDMETHODIMP accSelect(long flags, VARIANT child) override
    {
        int part;
        const HRESULT result = Find(child, &part);
        if (result != S_OK)
            return result;
        if (!(flags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)))
            return E_INVALIDARG;
        if (flags & SELFLAG_TAKEFOCUS)
            SetFocus(window);
        if ((flags & SELFLAG_TAKESELECTION) && part >= 0 && !IsCutOff())
            source->SelectPart(part);
        return S_OK;
    }

    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                             VARIANT child) override
    {
        if (!left || !top || !width || !height)
            return E_INVALIDARG;
        *left = *top = *width = *height = 0;
        int part;
        const HRESULT result = Find(child, &part);
        if (result != S_OK)
            return result;
        if (part < 0)
            return standard->accLocation(left, top, width, height, child);
        CRect place = source->Part(part).place;
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
        *left = place.left;
        *top = place.top;
        *width = place.Width();
        *height = place.Height();
        return S_OK;
    }

    STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* out) override
    {
        int part;
        const HRESULT result = Begin(start, out, &part);
        if (result != S_OK)
            return result;
        if (direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD)
            return part >= 0
                       ? E_INVALIDARG
                       : GivePart(direction == NAVDIR_FIRSTCHILD ? 0 : source->PartCount() - 1,
                                  out);
        if (part < 0)
            return standard->accNavigate(direction, start, out);
        const long back = source->Kind().isAcross ? NAVDIR_LEFT : NAVDIR_UP;
        const long on = source->Kind().isAcross ? NAVDIR_RIGHT : NAVDIR_DOWN;
        if (direction == NAVDIR_NEXT || direction == on)
            return GivePart(part + 1, out);
        if (direction == NAVDIR_PREVIOUS || direction == back)
            return GivePart(part - 1, out);
        return GiveNothing(out);
    }

    STDMETHODIMP accHitTest(long x, long y, VARIANT* out) override
    {
        const HRESULT result = Begin(Self(), out, nullptr);
        if (result != S_OK)
            return result;
        CPoint point(x, y);
        ScreenToClient(window, &point);
        CRect client;
        GetClientRect(window, &client);
        return client.PtInRect(point) ? GiveNumber(ChildOf(source->PartAt(point)), out)
                                      : GiveNothing(out);
    }

    STDMETHODIMP accDoDefaultAction(VARIANT child) override
    {
        int part;
        const HRESULT result = Find(child, &part);
        if (result != S_OK)
            return result;
        if (part < 0)
            return DISP_E_MEMBERNOTFOUND;
        source->PressPart(part);
        return S_OK;
    }

    STDMETHODIMP put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    // Only Release ends it.
    ~CAccessibleObject() { standard->Release(); }

    static VARIANT Self()
    {
        VARIANT self = {};
        self.vt = VT_I4;
        self.lVal = CHILDID_SELF;
        return self;
    }

    /// To readers the window itself is 0 and its parts begin at 1.
    static long ChildOf(int part) { return part + 1; }

    /// @param part gets -1 for the window itself
    HRESULT Find(const VARIANT& child, int* part) const
    {
        *part = -1;
        if (IsCutOff())
            return CO_E_OBJNOTCONNECTED;
        if (child.vt != VT_I4 || child.lVal < 0 || child.lVal > source->PartCount())
            return E_INVALIDARG;
        *part = child.lVal - 1;
        return S_OK;
    }

    template <typename Out>
    HRESULT Begin(const VARIANT& child, Out* out, int* part) const
    {
        if (!out)
            return E_INVALIDARG;
        *out = {};
        int unused;
        return Find(child, part ? part : &unused);
    }

    HRESULT GiveNoText(const VARIANT& child, BSTR* out) const
    {
        int part;
        const HRESULT result = Begin(child, out, &part);
        return result == S_OK ? S_FALSE : result;
    }

    HRESULT GivePart(int part, VARIANT* out) const
    {
        return part >= 0 && part < source->PartCount() ? GiveNumber(ChildOf(part), out)
                                                       : GiveNothing(out);
    }

    long StateOf(int part, long windowState) const
    {
        long state = windowState & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE);
        state |= STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
        if (part == source->SelectedPart())
            state |= STATE_SYSTEM_SELECTED |
                     (GetFocus() == window ? static_cast<long>(STATE_SYSTEM_FOCUSED) : 0);
        CRect client;
        GetClientRect(window, &client);
        const CRect place = source->Part(part).place;
        CRect visible;
        if (!visible.IntersectRect(&client, &place))
            state |= STATE_SYSTEM_OFFSCREEN;
        return state;
    }

    AccessibleSource* source; ///< null once its window's object has ended
    const HWND window;
    IAccessible* const standard; ///< the system's object for the same window, owned
    std::atomic<ULONG> references = 1;
};

CAccessibleLink::CAccessibleLink(AccessibleSource& newSource)
    : source(newSource)
{
}

CAccessibleLink::~CAccessibleLink()
{
    DropObject();
}

void CAccessibleLink::DropObject()
{
    if (!object)
        return;
    object->CutOff();
    object->Release();
    object = nullptr;
}

LRESULT CAccessibleLink::Answer(WPARAM wParam, LPARAM lParam)
{
    if (static_cast<LONG>(lParam) != static_cast<LONG>(OBJID_CLIENT) || !System().AreThere())
        return 0;
    // An object may get a window anew.
    if (object && object->IsCutOff())
        DropObject();
    if (!object)
    {
        void* standard = nullptr;
        if (FAILED(System().createStandard(source.DrawnWindow(), OBJID_CLIENT,
                                           __uuidof(IAccessible), &standard)))
            return 0;
        object = new CAccessibleObject(source, static_cast<IAccessible*>(standard));
    }
    const LRESULT answer = System().toResult(__uuidof(IAccessible), wParam, object);
    return answer > 0 ? answer : 0;
}

void CAccessibleLink::TellSelection() const
{
    TellOfPart(EVENT_OBJECT_SELECTION);
    if (GetFocus() == source.DrawnWindow())
        TellOfPart(EVENT_OBJECT_FOCUS);
}

void CAccessibleLink::TellOfPart(DWORD event) const
{
    const HWND window = source.DrawnWindow();
    const int part = source.SelectedPart();
    if (window && part >= 0)
        NotifyWinEvent(event, window, OBJID_CLIENT, part + 1);
}
