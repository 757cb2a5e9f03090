#pragma once

#include "mfc/parts/Debug.h"
#include "mfc/parts/Object.h"
#include "mfc/parts/String.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

class CCmdTarget;
class CDC;
class CGdiObject;
class CWinApp;
class CWinThread;
class CWnd;

/// What one module, program or DLL, keeps for itself.
class AFX_MODULE_STATE
{
public:
    AFX_MODULE_STATE() = default;
    ~AFX_MODULE_STATE();
    AFX_MODULE_STATE(const AFX_MODULE_STATE&) = delete;
    AFX_MODULE_STATE& operator=(const AFX_MODULE_STATE&) = delete;

    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr;
    bool m_bDLL = false;
    /// Window classes that a DLL has registered, and must unregister when it goes.
    std::set<std::string> m_registeredClasses;
    /// Names given out by AfxRegisterWndClass; they stay valid as long as the module.
    std::set<std::string> m_classNames;
};

/// Objects that stand for the handles of one kind in one thread.
///
/// Permanent objects are the ones that a program attached. Temporary ones are made when a handle
/// without an object is asked for, and belong to the map. Each is of a level: 0 outside of all
/// messages, higher inside of a message or a modal loop (see CTempScope), and goes when its level
/// ends or is idle.
template <typename T>
class CHandleMap
{
public:
    ~CHandleMap() { DeleteTemporaries(0); }

    T* FindPermanent(HANDLE handle) const { return Find(m_permanent, handle); }
    T* FindTemporary(HANDLE handle) const { return Find(m_temporary, handle); }
    void SetPermanent(HANDLE handle, T* object) { m_permanent[handle] = object; }
    void RemovePermanent(HANDLE handle) { m_permanent.erase(handle); }
    size_t TemporaryCount() const { return m_order.size(); }

    /// The permanent object, or else the temporary one, which is made of the given level if there
    /// is none. Null for null.
    template <typename Make>
    T* FindOrMake(HANDLE handle, int level, Make make)
    {
        if (!handle)
        {
            return nullptr;
        }
        if (T* permanent = FindPermanent(handle))
        {
            return permanent;
        }
        T*& temporary = m_temporary[handle];
        if (!temporary)
        {
            temporary = make();
            m_order.push_back({handle, level});
        }
        return temporary;
    }

    /// Deletes the temporary objects of this level and those above; their handles live on.
    void DeleteTemporaries(int level)
    {
        // Levels never fall along the order: whoever ends a level deletes what it made.
        while (!m_order.empty() && m_order.back().level >= level)
        {
            const auto position = m_temporary.find(m_order.back().handle);
            T* object = position->second;
            m_temporary.erase(position);
            m_order.pop_back();
            T::ForgetHandle(*object);
            delete object;
        }
    }

private:
    using Objects = std::unordered_map<HANDLE, T*>;
    struct Entry
    {
        HANDLE handle;
        int level;
    };

    static T* Find(const Objects& objects, HANDLE handle)
    {
        const auto position = objects.find(handle);
        return position == objects.end() ? nullptr : position->second;
    }

    Objects m_permanent;
    Objects m_temporary;
    std::vector<Entry> m_order;
};

/// What one module keeps for one thread.
class AFX_MODULE_THREAD_STATE
{
public:
    AFX_MODULE_THREAD_STATE();
    ~AFX_MODULE_THREAD_STATE();

    CWinThread* m_pCurrentWinThread = nullptr;
    std::unique_ptr<CHandleMap<CWnd>> m_windows;
    std::unique_ptr<CHandleMap<CDC>> m_deviceContexts;
    std::unique_ptr<CHandleMap<CGdiObject>> m_gdiObjects;
    /// Level that new temporary objects get.
    int m_tempLevel = 0;

    void DeleteTempObjects(int level);
};

/// What this copy of the framework keeps for one thread, whatever the module state.
class AFX_THREAD_STATE
{
public:
    /// Null: none was set, the module's own counts.
    AFX_MODULE_STATE* m_pModuleState = nullptr;

    MSG m_lastSentMsg = {};
    /// The object whose window is being created.
    CWnd* m_pWndInit = nullptr;
    HHOOK m_hHookOldCbtFilter = nullptr;
    HHOOK m_hHookOldMsgFilter = nullptr;
    /// Notifications to this window are dropped while its data is exchanged.
    HWND m_hLockoutNotifyWindow = nullptr;

    MSG m_msgCur = {};
    POINT m_ptCursorLast = {};
    UINT m_nMsgLast = WM_NULL;

    AFX_MODULE_THREAD_STATE& ModuleThreadState(AFX_MODULE_STATE* module);
    void ForgetModule(AFX_MODULE_STATE* module) { m_moduleThreads.erase(module); }

private:
    std::unordered_map<AFX_MODULE_STATE*, std::unique_ptr<AFX_MODULE_THREAD_STATE>> m_moduleThreads;
};

/// Ends the temporary objects made in its life, and raises the level of those made meanwhile.
class CTempScope
{
public:
    CTempScope();
    ~CTempScope();
    CTempScope(const CTempScope&) = delete;
    CTempScope& operator=(const CTempScope&) = delete;

private:
    AFX_MODULE_THREAD_STATE& m_state;
    int m_outerLevel;
};

/// A CTempScope around the outermost of nested messages. Inside of a modal loop there is nothing
/// to do: the loop ends the objects when it is idle.
class CMessageScope
{
public:
    CMessageScope();
    ~CMessageScope();
    CMessageScope(const CMessageScope&) = delete;
    CMessageScope& operator=(const CMessageScope&) = delete;

private:
    std::optional<CTempScope> m_scope;
};

AFX_THREAD_STATE* AFXAPI AfxGetThreadState();
AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState();

/// The state that is current in this thread: the one last set, or else the module's own.
AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
/// The state of the module that this copy of the framework is linked into.
AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
/// Makes a state current in this thread; returns what was set before, null if nothing was.
AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState);

/// Makes a module state current for its own life and sets back what was set before.
class AFX_MAINTAIN_STATE2
{
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pNewState)
        : m_pPrevModuleState(AfxSetModuleState(pNewState))
    {
    }
    ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(m_pPrevModuleState); }
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_pPrevModuleState;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p)

HINSTANCE AFXAPI AfxGetInstanceHandle();
HINSTANCE AFXAPI AfxGetResourceHandle();
void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// The module in which a resource is looked for: always the resource handle, since the subset has
/// no extension DLLs.
HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// Name of the application; the empty text before there is one.
LPCTSTR AFXAPI AfxGetAppName();
