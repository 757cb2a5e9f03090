#include <afxdialogex.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)
IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

// clang-format off
BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &ThisClass::OnOK)
    ON_COMMAND(IDCANCEL, &ThisClass::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &ThisClass::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &ThisClass::HandleSetFont)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
END_MESSAGE_MAP()
// clang-format on

namespace
{
/// Style and place of a template of either form.
struct CTemplateHead
{
    explicit CTemplateHead(LPCDLGTEMPLATE dialogTemplate)
    {
        // The extended form begins with version 1 and the mark 0xFFFF; its style and its place
        // stand behind a help id and the extended style.
        struct Extended
        {
            WORD version;
            WORD mark;
            DWORD helpId;
            DWORD exStyle;
            DWORD style;
            WORD itemCount;
            short x;
            short y;
        };
        const auto* extended = reinterpret_cast<const Extended*>(dialogTemplate);
        if (extended->version == 1 && extended->mark == 0xFFFF)
        {
            style = extended->style;
            x = extended->x;
            y = extended->y;
            return;
        }
        style = dialogTemplate->style;
        x = dialogTemplate->x;
        y = dialogTemplate->y;
    }

    DWORD style;
    short x;
    short y;
};

LPCDLGTEMPLATE LoadTemplate(LPCTSTR name)
{
    const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC resource = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL loaded = resource ? ::LoadResource(module, resource) : nullptr;
    return loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
}

/// Keeps the owner of a modal dialog disabled.
class COwnerBlock
{
public:
    explicit COwnerBlock(HWND owner)
        : m_owner(owner && ::IsWindowEnabled(owner) && owner != ::GetDesktopWindow() ? owner
                                                                                     : nullptr)
    {
        if (m_owner)
        {
            ::EnableWindow(m_owner, FALSE);
        }
    }
    ~COwnerBlock() { Release(); }
    COwnerBlock(const COwnerBlock&) = delete;
    COwnerBlock& operator=(const COwnerBlock&) = delete;

    void Release()
    {
        if (m_owner)
        {
            ::EnableWindow(m_owner, TRUE);
            m_owner = nullptr;
        }
    }

private:
    HWND m_owner;
};

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
    {
        return FALSE;
    }
    auto* dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(window));
    return dialog ? dialog->OnInitDialog() : TRUE;
}
} // namespace

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    ASSERT(m_hWnd == nullptr);
    if (m_hWnd || !lpDialogTemplate)
    {
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND hWnd = ::CreateDialogIndirect(hInst, const_cast<LPDLGTEMPLATE>(lpDialogTemplate),
                                             HandleOf(pParentWnd), &DialogProcedure);
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy();
    }
    return hWnd != nullptr;
}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_pParentWnd(pParentWnd)
{
    SetTemplateName(lpszTemplateName);
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(MAKEINTRESOURCE(nIDTemplate), pParentWnd)
{
}

CDialog::~CDialog()
{
    if (m_hWnd)
    {
        CWnd::DestroyWindow();
    }
}

void CDialog::SetTemplateName(LPCTSTR name)
{
    if (IS_INTRESOURCE(name))
    {
        m_lpszTemplateName = name;
        return;
    }
    m_templateName = name;
    m_lpszTemplateName = m_templateName;
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    SetTemplateName(lpszTemplateName);
    return CreateIndirect(LoadTemplate(m_lpszTemplateName), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd)
{
    m_lpDialogTemplate = lpDialogTemplate;
    const BOOL created = CreateDlgIndirect(
        lpDialogTemplate, pParentWnd ? pParentWnd : AfxGetMainWnd(), AfxGetInstanceHandle());
    m_lpDialogTemplate = nullptr;
    return created;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd)
{
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpszTemplateName = nullptr;
    m_pParentWnd = pParentWnd;
    return lpDialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal()
{
    ASSERT(m_hWnd == nullptr);
    if (m_lpszTemplateName)
    {
        m_lpDialogTemplate = LoadTemplate(m_lpszTemplateName);
    }
    if (m_hWnd || !m_lpDialogTemplate)
    {
        return -1;
    }
    const HWND owner = AfxFindOwner(HandleOf(m_pParentWnd));
    COwnerBlock block(owner);
    RunModal(CWnd::FromHandle(owner));
    if (m_hWnd)
    {
        // Hidden before the owner is enabled, so that no click falls between the two; and the
        // owner becomes active before the dialog goes, or else Windows would pick any window.
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    block.Release();
    if (owner && m_hWnd && ::GetActiveWindow() == m_hWnd)
    {
        ::SetActiveWindow(owner);
    }
    DestroyWindow();
    return m_nModalResult;
}

/// Makes the window and runs it until it is ended, which OnInitDialog may have done.
void CDialog::RunModal(CWnd* owner)
{
    m_nModalResult = -1;
    m_continueModal = true;
    try
    {
        if (CreateDlgIndirect(m_lpDialogTemplate, owner, AfxGetInstanceHandle()) && m_continueModal)
        {
            const DWORD noIdle = GetStyle() & DS_NOIDLEMSG ? MLF_NOIDLEMSG : 0;
            RunModalLoop(MLF_SHOWONIDLE | noIdle);
        }
    }
    catch (CException* e)
    {
        // What a PreTranslateMessage throws comes here.
        e->Delete();
    }
    m_modalLoop = m_continueModal = false;
}

void CDialog::EndDialog(int nResult)
{
    if (m_modalLoop || m_continueModal)
    {
        EndModalLoop(nResult);
    }
    else
    {
        ::EndDialog(m_hWnd, nResult);
    }
}

BOOL CDialog::OnInitDialog()
{
    if (m_lpszTemplateName && !ExecuteDlgInit(m_lpszTemplateName))
    {
        EndDialog(-1);
        return FALSE;
    }
    if (!UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

/// A dialog of its own, placed at the origin by its template and by nothing else, is centred.
bool CDialog::WantsCentering() const
{
    if (!m_lpDialogTemplate || IsWindowVisible())
    {
        return false;
    }
    const CTemplateHead head(m_lpDialogTemplate);
    return head.x == 0 && head.y == 0 &&
           !(head.style & (WS_CHILD | DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN));
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    const bool wantsCentering = WantsCentering();
    CRect before;
    GetWindowRect(&before);
    const LRESULT result = Default();
    CRect after;
    GetWindowRect(&after);
    if (wantsCentering && !IsWindowVisible() && before.TopLeft() == after.TopLeft())
    {
        CenterWindow();
    }
    return result;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return 0;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

namespace
{
bool IsInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

/// A multi-line edit closes its dialog on Escape by a WM_CLOSE of its own, even where the dialog
/// has no way to be cancelled.
bool IsEscapeThatMustNotClose(const MSG& message, HWND dialog)
{
    if (message.message != WM_KEYDOWN ||
        (message.wParam != VK_ESCAPE && message.wParam != VK_CANCEL))
    {
        return false;
    }
    char name[8] = "";
    ::GetClassName(message.hwnd, name, sizeof(name));
    if (!(::GetWindowLong(message.hwnd, GWL_STYLE) & ES_MULTILINE) || ::lstrcmpi(name, "Edit") != 0)
    {
        return false;
    }
    const HWND cancel = ::GetDlgItem(dialog, IDCANCEL);
    return !cancel || !::IsWindowEnabled(cancel);
}
} // namespace

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
    {
        return TRUE;
    }
    if (IsEscapeThatMustNotClose(*pMsg, m_hWnd))
    {
        return TRUE;
    }
    return IsInput(pMsg->message) && IsDialogMessage(pMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
    {
        return TRUE;
    }
    // Ids of commands have the highest bit; 0xF000 and up are Windows' own.
    if (nCode != CN_COMMAND || nID < 0x8000 || nID >= 0xF000)
    {
        return FALSE;
    }
    CWnd* parent = GetParent();
    if (parent && parent->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
    {
        return TRUE;
    }
    CWinThread* thread = AfxGetThread();
    return thread && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
