#pragma once

#include "mfc/parts/Geometry.h"
#include "mfc/parts/Object.h"

class CCmdTarget;
class CWnd;
class CDC;
class CScrollBar;

/// Any handler of a message map, its type taken away; the entry's signature tells how to call it.
using AFX_PMSG = void (CCmdTarget::*)();

/// Signature of a handler. The names give the result and the arguments in letters: v nothing,
/// b BOOL, i int, u UINT, l LRESULT or LPARAM, w WPARAM, h brush, p point, D device context,
/// W window, S scroll bar, s structure.
enum AfxSig : UINT_PTR
{
    AfxSig_end,

    // Commands and notifications, which any command target may handle.
    AfxSigCmd_v,
    AfxSigCmd_b,
    AfxSigCmd_v_u,
    AfxSigCmd_b_u,
    AfxSigNotify_v,
    AfxSigNotify_b,
    AfxSigNotify_v_u,
    AfxSigNotify_b_u,

    // Messages of windows; all from here on.
    AfxSig_l_wl,
    AfxSig_v,
    AfxSig_u,
    AfxSig_v_b,
    AfxSig_b_b,
    AfxSig_b_D,
    AfxSig_i_create,
    AfxSig_v_uii,
    AfxSig_v_ii,
    AfxSig_h_DWu,
    AfxSig_h_Du,
    AfxSig_v_bu,
    AfxSig_v_bl,
    AfxSig_v_W,
    AfxSig_v_W_lparam,
    AfxSig_v_uWb,
    AfxSig_v_up,
    AfxSig_b_usp,
    AfxSig_b_Wuu,
    AfxSig_v_bs_calc,
    AfxSig_v_s_minmax,
    AfxSig_l_p,
    AfxSig_v_uuu,
    AfxSig_v_timer,
    AfxSig_v_uuS,
    AfxSig_v_uu,
    AfxSig_v_is_draw,
    AfxSig_v_is_measure,
    AfxSig_i_is_compare,
    AfxSig_v_is_delete,
    AfxSig_v_s_draw,
    AfxSig_v_s_measure,
    AfxSig_i_s_compare,
    AfxSig_v_s_delete,
    AfxSig_v_ul,
    AfxSig_v_Wp,
    AfxSig_v_s_pos,
    AfxSig_v_is_style,
    AfxSig_v_us_setting,
};

/// One line of a message map.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage; ///< message, WM_COMMAND or WM_NOTIFY, or a reflected one
    UINT nCode;    ///< control code or notification code
    UINT nID;      ///< control id, 0 for messages
    UINT nLastID;  ///< end of a range of ids
    UINT_PTR nSig; ///< AfxSig; for a registered message the address of its variable
    AFX_PMSG pfn;  ///< the handler
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;    ///< ends with AfxSig_end
};

/// Who would handle a command; filled instead of calling the handler.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

/// A notification on its way: what OnCmdMsg gets as pExtra.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// Command code of a menu item or accelerator: the same as BN_CLICKED.
constexpr int CN_COMMAND = 0;

/// An object whose class has a message map.
class CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    /// Looks for a handler in the maps of the class and of its bases, in their order, and calls
    /// the first that fits. nCode holds the code in its low word and, unless it is WM_COMMAND,
    /// the message in its high word. FALSE: not handled, or the handler passed it on.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    CCmdTarget() = default;

    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* GetThisMessageMap();
};

#define DECLARE_MESSAGE_MAP()                                                                      \
protected:                                                                                         \
    static const AFX_MSGMAP* GetThisMessageMap();                                                  \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                     \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                              \
    {                                                                                              \
        return theClass::GetThisMessageMap();                                                      \
    }                                                                                              \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                \
    {                                                                                              \
        using ThisClass [[maybe_unused]] = theClass;                                               \
        using TheBaseClass = baseClass;                                                            \
        static const AFX_MSGMAP_ENTRY entries[] = {

/// The same for a class template with one type parameter.
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                 \
    template <typename type_name>                                                                  \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const                                   \
    {                                                                                              \
        return theClass<type_name>::GetThisMessageMap();                                           \
    }                                                                                              \
    template <typename type_name>                                                                  \
    const AFX_MSGMAP* theClass<type_name>::GetThisMessageMap()                                     \
    {                                                                                              \
        using ThisClass [[maybe_unused]] = theClass<type_name>;                                    \
        using TheBaseClass = baseClass;                                                            \
        static const AFX_MSGMAP_ENTRY entries[] = {

// The empty line is the end mark.
#define END_MESSAGE_MAP()                                                                          \
    {                                                                                              \
    }                                                                                              \
    }                                                                                              \
    ;                                                                                              \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, entries};              \
    return &messageMap;                                                                            \
    }
