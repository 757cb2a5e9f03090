#include <afxwin.h>

namespace
{
/// One thread state per thread, ended with the thread and, at the latest, with the module.
/// A fiber-local slot is the one kind that tells of a thread's end in a program as well as in a
/// DLL that is loaded late.
class CThreadSlot
{
public:
    CThreadSlot()
        : m_index(::FlsAlloc(&CThreadSlot::End))
    {
    }
    ~CThreadSlot() { ::FlsFree(m_index); }

    AFX_THREAD_STATE* Get()
    {
        auto* state = static_cast<AFX_THREAD_STATE*>(::FlsGetValue(m_index));
        if (!state)
        {
            state = new AFX_THREAD_STATE;
            ::FlsSetValue(m_index, state);
        }
        return state;
    }

private:
    static void WINAPI End(void* state) { delete static_cast<AFX_THREAD_STATE*>(state); }

    DWORD m_index;
};
} // namespace

AFX_THREAD_STATE* AFXAPI AfxGetThreadState()
{
    static CThreadSlot slot;
    return slot.Get();
}

AFX_MODULE_STATE::~AFX_MODULE_STATE()
{
    AfxGetThreadState()->ForgetModule(this);
}

AFX_MODULE_THREAD_STATE::AFX_MODULE_THREAD_STATE()
    : m_windows(std::make_unique<CHandleMap<CWnd>>())
    , m_deviceContexts(std::make_unique<CHandleMap<CDC>>())
    , m_gdiObjects(std::make_unique<CHandleMap<CGdiObject>>())
{
}

AFX_MODULE_THREAD_STATE::~AFX_MODULE_THREAD_STATE() = default;

void AFX_MODULE_THREAD_STATE::DeleteTempObjects(int level)
{
    m_windows->DeleteTemporaries(level);
    m_deviceContexts->DeleteTemporaries(level);
    m_gdiObjects->DeleteTemporaries(level);
}

AFX_MODULE_THREAD_STATE& AFX_THREAD_STATE::ModuleThreadState(AFX_MODULE_STATE* module)
{
    auto& state = m_moduleThreads[module];
    if (!state)
    {
        state = std::make_unique<AFX_MODULE_THREAD_STATE>();
    }
    return *state;
}

CTempScope::CTempScope()
    : m_state(*AfxGetModuleThreadState())
    , m_outerLevel(m_state.m_tempLevel++)
{
}

CTempScope::~CTempScope()
{
    m_state.DeleteTempObjects(m_outerLevel + 1);
    m_state.m_tempLevel = m_outerLevel;
}

CMessageScope::CMessageScope()
{
    if (AfxGetModuleThreadState()->m_tempLevel == 0)
    {
        m_scope.emplace();
    }
}

CMessageScope::~CMessageScope() = default;

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    // The thread slot must outlive the module state, whose destructor uses it.
    AfxGetThreadState();
    static AFX_MODULE_STATE state;
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState()
{
    AFX_MODULE_STATE* state = AfxGetThreadState()->m_pModuleState;
    return state ? state : AfxGetStaticModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState)
{
    AFX_THREAD_STATE* thread = AfxGetThreadState();
    AFX_MODULE_STATE* previous = thread->m_pModuleState;
    thread->m_pModuleState = pNewState;
    return previous;
}

AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState()
{
    return &AfxGetThreadState()->ModuleThreadState(AfxGetModuleState());
}

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR, LPCTSTR)
{
    return AfxGetResourceHandle();
}

LPCTSTR AFXAPI AfxGetAppName()
{
    LPCTSTR name = AfxGetModuleState()->m_lpszCurrentAppName;
    return name ? name : "";
}
