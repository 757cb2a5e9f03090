// Initial data of dialog templates: the items of list and combo boxes.

#include <afxwin.h>

#include <cstring>
#include <string>

namespace
{
const LPCTSTR kInitialData = MAKEINTRESOURCE(240);

/// One entry: a control, what to do with it, and the text.
struct CInitEntry
{
    WORD control;
    WORD message;
    std::string text;
};

/// Reads entries of control, message and length, each followed by that many bytes, up to control
/// 0 or to the end of the data, wherever that is.
class CInitReader
{
public:
    CInitReader(const void* data, size_t size)
        : m_next(static_cast<const char*>(data))
        , m_left(size)
    {
    }

    /// FALSE at the end.
    bool Read(CInitEntry& entry)
    {
        DWORD length = 0;
        if (!Take(entry.control) || entry.control == 0 || !Take(entry.message) || !Take(length) ||
            length > m_left)
        {
            return false;
        }
        entry.text.assign(m_next, strnlen(m_next, length));
        m_next += length;
        m_left -= length;
        return true;
    }

private:
    template <typename T>
    bool Take(T& value)
    {
        if (m_left < sizeof(T))
        {
            return false;
        }
        std::memcpy(&value, m_next, sizeof(T));
        m_next += sizeof(T);
        m_left -= sizeof(T);
        return true;
    }

    const char* m_next;
    size_t m_left;
};

bool IsOfClass(HWND window, LPCTSTR name)
{
    char className[32] = "";
    ::GetClassName(window, className, sizeof(className));
    return ::lstrcmpi(className, name) == 0;
}

/// The message that adds an item; 0 for entries that add none.
UINT AddMessage(HWND control, WORD message)
{
    switch (message)
    {
    case 0x0401: // what LB_ADDSTRING and CB_ADDSTRING were on 16 bits; resource editors write these
    case LB_ADDSTRING:
        return LB_ADDSTRING;
    case 0x0403:
    case CB_ADDSTRING:
        return CB_ADDSTRING;
    case 0x1234: // whatever the control is
        return IsOfClass(control, "ListBox") ? LB_ADDSTRING : CB_ADDSTRING;
    default:
        return 0;
    }
}

bool AddItem(HWND dialog, const CInitEntry& entry)
{
    const HWND control = ::GetDlgItem(dialog, entry.control);
    const UINT message = AddMessage(control, entry.message);
    return message == 0 ||
           ::SendMessage(control, message, 0, reinterpret_cast<LPARAM>(entry.text.c_str())) != -1;
}
} // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, kInitialData);
    const HRSRC resource = ::FindResource(module, lpszResourceName, kInitialData);
    if (!resource)
    {
        return ExecuteDlgInit(nullptr, 0);
    }
    return ExecuteDlgInit(::LockResource(::LoadResource(module, resource)),
                          ::SizeofResource(module, resource));
}

BOOL CWnd::ExecuteDlgInit(const void* lpResource, DWORD nSize)
{
    bool loaded = true;
    CInitReader reader(lpResource, lpResource ? nSize : 0);
    CInitEntry entry;
    while (loaded && reader.Read(entry))
    {
        loaded = AddItem(m_hWnd, entry);
    }
    if (loaded)
    {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    }
    return loaded;
}
