// Modal dialogs: their loop, their owner, their end.

#include "tests/mfc/GdiCount.h"
#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
/// A dialog that takes steps when it starts and when it is idle.
class CPlainDlg : public CDialog
{
public:
    using Step = std::function<void(CPlainDlg&)>;

    CPlainDlg(CWnd* parent, Step step)
        : CDialog(IDD_PLAIN, parent)
        , onIdle(std::move(step))
    {
    }
    explicit CPlainDlg(Step step)
        : CPlainDlg(nullptr, std::move(step))
    {
    }

    Step onInit;
    Step onIdle;
    bool valid = true;
    int refusals = 0;
    bool wasVisibleWhenIdle = false;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (onInit)
        {
            onInit(*this);
        }
        return TRUE;
    }
    using CDialog::m_lpszTemplateName;

    afx_msg LRESULT OnKickIdle(WPARAM, LPARAM)
    {
        wasVisibleWhenIdle = IsWindowVisible();
        if (onIdle)
        {
            const Step step = std::move(onIdle);
            onIdle = nullptr;
            step(*this);
        }
        return 0;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        if (pDX->m_bSaveAndValidate && !valid)
        {
            ++refusals;
            pDX->Fail();
        }
    }
    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(CPlainDlg, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &ThisClass::OnKickIdle)
END_MESSAGE_MAP()
// clang-format on

CPlainDlg::Step End(int result)
{
    return [result](CPlainDlg& dialog)
    {
        dialog.EndDialog(result);
    };
}

CPlainDlg::Step Key(UINT key)
{
    return [key](CPlainDlg&)
    {
        ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 1);
    };
}

void ClickOn(CWnd& dialog, int id)
{
    dialog.GetDlgItem(id)->SendMessage(BM_CLICK);
}

bool TakeQuitMessage(int& code)
{
    MSG message;
    const bool taken = ::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
    code = taken ? static_cast<int>(message.wParam) : -1;
    return taken;
}
} // namespace

TEST(Modal, ButtonsEndIt)
{
    CPlainDlg ok([](CPlainDlg& d) { ClickOn(d, IDOK); });
    EXPECT_EQ(IDOK, ok.DoModal());
    EXPECT_EQ(nullptr, ok.m_hWnd);
    CPlainDlg cancel([](CPlainDlg& d) { ClickOn(d, IDCANCEL); });
    EXPECT_EQ(IDCANCEL, cancel.DoModal());
}

TEST(Modal, KeysEndIt)
{
    CPlainDlg enter(Key(VK_RETURN));
    EXPECT_EQ(IDOK, enter.DoModal());
    CPlainDlg escape(Key(VK_ESCAPE));
    EXPECT_EQ(IDCANCEL, escape.DoModal());
}

TEST(Modal, CloseBoxCancels)
{
    CPlainDlg dialog([](CPlainDlg& d) { d.PostMessage(WM_CLOSE); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST(Modal, AnyResultComesBack)
{
    CPlainDlg dialog(End(4711));
    EXPECT_EQ(4711, dialog.DoModal());
    dialog.onIdle = End(-7);
    EXPECT_EQ(-7, dialog.DoModal()) << "it can run again";
}

TEST(Modal, MissingTemplateGivesMinusOne)
{
    CTestFrame owner;
    CDialog dialog(9999, &owner);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
    CDialog empty;
    EXPECT_EQ(-1, empty.DoModal());
}

TEST(Modal, TemplateByNameAndFromMemory)
{
    class CEnding : public CDialog
    {
    public:
        using CDialog::CDialog;
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            EndDialog(3);
            return TRUE;
        }
    };
    CEnding byName("named");
    EXPECT_EQ(3, byName.DoModal());
    const HRSRC resource = ::FindResource(nullptr, MAKEINTRESOURCE(IDD_PLAIN), RT_DIALOG);
    CEnding fromMemory;
    EXPECT_TRUE(fromMemory.InitModalIndirect(
        static_cast<LPCDLGTEMPLATE>(::LockResource(::LoadResource(nullptr, resource)))));
    EXPECT_EQ(3, fromMemory.DoModal());
    EXPECT_FALSE(fromMemory.InitModalIndirect(nullptr));
}

TEST(Modal, InvalidDataKeepsItOpen)
{
    CPlainDlg dialog(nullptr);
    dialog.onIdle = [](CPlainDlg& d)
    {
        d.valid = false;
        ClickOn(d, IDOK);
        EXPECT_EQ(1, d.refusals);
        d.valid = true;
        d.onIdle = End(5);
    };
    EXPECT_EQ(5, dialog.DoModal());
}

TEST(Modal, IsShownWhenIdle)
{
    CPlainDlg dialog(
        [](CPlainDlg& d)
        {
            EXPECT_TRUE(d.wasVisibleWhenIdle);
            d.EndDialog(1);
        });
    dialog.onInit = [](CPlainDlg& d)
    {
        EXPECT_FALSE(d.IsWindowVisible());
    };
    EXPECT_EQ(1, dialog.DoModal());
}

namespace
{
/// Asks for painting for ever, and ends the dialog by the first one that finds it visible.
class CRestlessFrame : public CTestFrame
{
public:
    CPlainDlg* dialog = nullptr;
    int paints = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        constexpr int kEnough = 200;
        if (message != WM_PAINT || !dialog)
        {
            return CTestFrame::WindowProc(message, wParam, lParam);
        }
        if (dialog->IsWindowVisible())
        {
            dialog->EndDialog(8);
        }
        else if (++paints == kEnough)
        {
            dialog->EndDialog(9);
        }
        return 0;
    }
};
} // namespace

TEST(Modal, IsShownAlsoWhenThereIsNoIdleTime)
{
    CRestlessFrame frame;
    CPlainDlg dialog(nullptr);
    dialog.onInit = [&frame](CPlainDlg& d)
    {
        frame.dialog = &d;
        frame.Invalidate();
    };
    EXPECT_EQ(8, dialog.DoModal());
    frame.dialog = nullptr;
    frame.UpdateWindow();
}

TEST(Modal, EndedAtTheStartIsNeverShown)
{
    CTestFrame owner;
    bool kicked = false;
    CPlainDlg dialog(&owner, [&](CPlainDlg&) { kicked = true; });
    dialog.onInit = [](CPlainDlg& d)
    {
        d.EndDialog(6);
        EXPECT_FALSE(d.IsWindowVisible());
    };
    EXPECT_EQ(6, dialog.DoModal());
    EXPECT_FALSE(kicked) << "the loop has not run";
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(ModalOwner, IsDisabledMeanwhileAndActiveAfterwards)
{
    CTestFrame owner;
    CTestFrame other;
    owner.SetActiveWindow();
    CPlainDlg dialog(&owner,
                     [&](CPlainDlg& d)
                     {
                         EXPECT_FALSE(owner.IsWindowEnabled());
                         EXPECT_EQ(owner.m_hWnd, ::GetWindow(d, GW_OWNER));
                         d.EndDialog(1);
                     });
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(owner.m_hWnd, ::GetActiveWindow());
}

namespace
{
class CWatchedOwner : public CTestFrame
{
public:
    const CWnd* dialog = nullptr;
    bool dialogVisibleWhenEnabled = true;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENABLE && wParam && dialog)
        {
            dialogVisibleWhenEnabled = dialog->IsWindowVisible();
        }
        return CTestFrame::WindowProc(message, wParam, lParam);
    }
};

class CWatchingDlg : public CPlainDlg
{
public:
    using CPlainDlg::CPlainDlg;
    bool ownerEnabledAtEnd = false;
    HWND activeAtEnd = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY)
        {
            ownerEnabledAtEnd = ::IsWindowEnabled(::GetWindow(m_hWnd, GW_OWNER));
            activeAtEnd = ::GetActiveWindow();
        }
        return CPlainDlg::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST(ModalOwner, TakesOverBeforeTheDialogIsGone)
{
    CWatchedOwner owner;
    owner.SetActiveWindow();
    CWatchingDlg dialog(&owner, End(1));
    owner.dialog = &dialog;
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_FALSE(owner.dialogVisibleWhenEnabled);
    EXPECT_TRUE(dialog.ownerEnabledAtEnd);
    EXPECT_EQ(owner.m_hWnd, dialog.activeAtEnd);
}

TEST(ModalOwner, OfAChildIsItsTopLevelWindow)
{
    CTestFrame frame;
    CWnd child;
    child.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 50, 50), &frame, 1);
    CPlainDlg dialog(&child,
                     [&](CPlainDlg& d)
                     {
                         EXPECT_FALSE(frame.IsWindowEnabled());
                         EXPECT_EQ(frame.m_hWnd, ::GetWindow(d, GW_OWNER));
                         d.EndDialog(1);
                     });
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_TRUE(frame.IsWindowEnabled());
    child.DestroyWindow();
}

TEST(ModalOwner, ThatWasDisabledStaysDisabled)
{
    CTestFrame owner;
    owner.EnableWindow(FALSE);
    CPlainDlg dialog(&owner, End(1));
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(ModalOwner, WithoutAParentIsTheMainWindow)
{
    CTestFrame mainWnd;
    theApp.m_pMainWnd = &mainWnd;
    CTestFrame active;
    active.SetActiveWindow();
    CPlainDlg dialog(
        [&](CPlainDlg& d)
        {
            EXPECT_FALSE(mainWnd.IsWindowEnabled());
            EXPECT_EQ(mainWnd.m_hWnd, ::GetWindow(d, GW_OWNER));
            d.EndDialog(1);
        });
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_TRUE(mainWnd.IsWindowEnabled());
    theApp.m_pMainWnd = nullptr;
}

TEST(ModalOwner, IsTheLastActivePopupOfTheMainWindow)
{
    CTestFrame mainWnd;
    theApp.m_pMainWnd = &mainWnd;
    CPlainDlg outer(
        [](CPlainDlg& o)
        {
            CPlainDlg inner(
                [&](CPlainDlg& i)
                {
                    EXPECT_EQ(o.m_hWnd, ::GetWindow(i, GW_OWNER));
                    i.EndDialog(1);
                });
            EXPECT_EQ(1, inner.DoModal());
            o.EndDialog(2);
        });
    EXPECT_EQ(2, outer.DoModal());
    theApp.m_pMainWnd = nullptr;
}

TEST(ModalOwner, WithoutAMainWindowIsTheActiveOne)
{
    CTestFrame active;
    active.SetActiveWindow();
    CPlainDlg dialog(
        [&](CPlainDlg& d)
        {
            EXPECT_FALSE(active.IsWindowEnabled());
            d.EndDialog(1);
        });
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_TRUE(active.IsWindowEnabled());
}

TEST(ModalOwner, MayBeMissing)
{
    ::SetActiveWindow(nullptr);
    ASSERT_EQ(nullptr, ::GetActiveWindow());
    CPlainDlg dialog(
        [](CPlainDlg& d)
        {
            EXPECT_EQ(nullptr, ::GetWindow(d, GW_OWNER));
            d.EndDialog(1);
        });
    EXPECT_EQ(1, dialog.DoModal());
}

TEST(ModalOwner, NestedDialogsOwnEachOther)
{
    CTestFrame frame;
    frame.SetActiveWindow();
    CPlainDlg outer(&frame,
                    [&](CPlainDlg& o)
                    {
                        CPlainDlg inner(
                            [&](CPlainDlg& i)
                            {
                                EXPECT_EQ(o.m_hWnd, ::GetWindow(i, GW_OWNER));
                                EXPECT_FALSE(o.IsWindowEnabled());
                                i.EndDialog(21);
                            });
                        EXPECT_EQ(21, inner.DoModal());
                        EXPECT_TRUE(o.IsWindowEnabled());
                        EXPECT_FALSE(frame.IsWindowEnabled());
                        EXPECT_EQ(o.m_hWnd, ::GetActiveWindow());
                        o.EndDialog(22);
                    });
    EXPECT_EQ(22, outer.DoModal());
    EXPECT_TRUE(frame.IsWindowEnabled());
}

TEST(ModalLoop, QuitEndsItAndReachesTheOuterLoops)
{
    CTestFrame owner;
    CPlainDlg outer(&owner,
                    [](CPlainDlg& o)
                    {
                        CPlainDlg inner(&o, [](CPlainDlg&) { ::PostQuitMessage(33); });
                        EXPECT_EQ(-1, inner.DoModal());
                    });
    EXPECT_EQ(-1, outer.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
    int code = 0;
    EXPECT_TRUE(TakeQuitMessage(code));
    EXPECT_EQ(33, code);
}

TEST(ModalLoop, EndOfTheWindowEndsIt)
{
    CTestFrame owner;
    CPlainDlg dialog(&owner, [](CPlainDlg& d) { d.DestroyWindow(); });
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
}

namespace
{
bool EndHidesAModelessDialog(CDialog& dialog)
{
    dialog.Create(IDD_PLAIN);
    dialog.ShowWindow(SW_SHOW);
    dialog.EndDialog(1);
    const bool hidden = !dialog.IsWindowVisible();
    dialog.DestroyWindow();
    return hidden;
}
} // namespace

TEST(ModalLoop, EndOfAModelessDialogHidesIt)
{
    CDialog dialog;
    EXPECT_TRUE(EndHidesAModelessDialog(dialog));
}

TEST(ModalLoop, ExceptionEndsItAndFreesTheOwner)
{
    CTestFrame owner;
    theApp.onPreTranslate = [](const MSG& message)
    {
        if (message.message == WM_APP)
        {
            AfxThrowUserException();
        }
        return false;
    };
    CPlainDlg dialog(&owner, [](CPlainDlg& d) { d.PostMessage(WM_APP); });
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(EndHidesAModelessDialog(dialog)) << "and leaves nothing behind";
    dialog.onIdle = End(5);
    EXPECT_EQ(5, dialog.DoModal());

    theApp.onPreTranslate = [](const MSG& message)
    {
        if (message.message == WM_APP)
        {
            throw std::runtime_error("not the framework's");
        }
        return false;
    };
    dialog.onIdle = [](CPlainDlg& d)
    {
        d.PostMessage(WM_APP);
    };
    EXPECT_THROW(dialog.DoModal(), std::runtime_error);
    EXPECT_TRUE(owner.IsWindowEnabled());
    theApp.onPreTranslate = nullptr;
}

namespace
{
class CIdleFrame : public CTestFrame
{
public:
    int enterIdles = 0;
    HWND source = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX)
        {
            ++enterIdles;
            source = reinterpret_cast<HWND>(lParam);
        }
        return CTestFrame::WindowProc(message, wParam, lParam);
    }
};
} // namespace

namespace
{
/// Has more to do three times, and then ends.
class CBusyDlg : public CPlainDlg
{
public:
    using CPlainDlg::CPlainDlg;
    int kicks = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_KICKIDLE)
        {
            return CPlainDlg::WindowProc(message, wParam, lParam);
        }
        ++kicks;
        if (kicks == 4)
        {
            EndDialog(1);
        }
        return TRUE;
    }
};
} // namespace

TEST(ModalLoop, TellsTheOwnerThatItIsIdle)
{
    CIdleFrame owner;
    HWND dialogWindow = nullptr;
    CPlainDlg dialog(&owner,
                     [&](CPlainDlg& d)
                     {
                         dialogWindow = d;
                         d.EndDialog(1);
                     });
    dialog.DoModal();
    EXPECT_EQ(1, owner.enterIdles);
    EXPECT_EQ(dialogWindow, owner.source);

    CIdleFrame toldOnce;
    CBusyDlg busy(&toldOnce, nullptr);
    EXPECT_EQ(1, busy.DoModal());
    EXPECT_EQ(4, busy.kicks);
    EXPECT_EQ(1, toldOnce.enterIdles) << "once for each time without messages";

    CIdleFrame untold;
    CPlainDlg quiet(&untold, End(1));
    quiet.onInit = [](CPlainDlg& d)
    {
        d.ModifyStyle(0, DS_NOIDLEMSG);
    };
    quiet.DoModal();
    EXPECT_EQ(0, untold.enterIdles);
}

TEST(ModalLoop, TemporaryObjectsGoWhenItIsIdle)
{
    CTestFrame frame;
    theApp.OnIdle(0);
    const HWND outside =
        ::CreateWindow("BUTTON", "", WS_CHILD, 0, 0, 1, 1, frame, nullptr, nullptr, nullptr);
    CWnd* fromOutside = CWnd::FromHandle(outside);
    auto& windows = *AfxGetModuleThreadState()->m_windows;
    HWND inner = nullptr;
    bool goneLater = false;
    CPlainDlg dialog(&frame,
                     [&](CPlainDlg& d)
                     {
                         inner = d.GetDlgItem(IDC_BUTTON)->m_hWnd;
                         EXPECT_NE(nullptr, windows.FindTemporary(inner));
                         d.PostMessage(WM_NULL);
                         d.onIdle = [&](CPlainDlg& later)
                         {
                             goneLater = windows.FindTemporary(inner) == nullptr;
                             later.EndDialog(1);
                         };
                     });
    dialog.DoModal();
    EXPECT_TRUE(goneLater);
    EXPECT_EQ(fromOutside, windows.FindTemporary(outside))
        << "who runs the dialog may still use what it holds";
    EXPECT_EQ(outside, fromOutside->m_hWnd);
    theApp.OnIdle(0);
}

TEST(ModalLoop, RunsForAnyWindow)
{
    CTestFrame frame;
    frame.PostMessage(WM_APP);
    class CLoopWnd : public CWnd
    {
    public:
        ~CLoopWnd() override { DestroyWindow(); }
        int kicks = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_KICKIDLE)
            {
                EXPECT_EQ(kicks, lParam) << "it counts up";
                ++kicks;
                if (kicks == 3)
                {
                    EndModalLoop(44);
                }
                return TRUE;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    PumpPending();
    CLoopWnd wnd;
    wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 20, 20, nullptr, nullptr);
    EXPECT_EQ(44, wnd.RunModalLoop());
    EXPECT_EQ(3, wnd.kicks);
    EXPECT_FALSE(wnd.IsWindowVisible()) << "it was not asked to be shown";
    EXPECT_FALSE(wnd.ContinueModal());
}

TEST(ModalLoop, NoKickWhereNoneIsWanted)
{
    class CQuietWnd : public CWnd
    {
    public:
        ~CQuietWnd() override { DestroyWindow(); }
        int kicks = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            kicks += message == WM_KICKIDLE;
            if (message == WM_TIMER)
            {
                EndModalLoop(2);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CQuietWnd wnd;
    wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 20, 20, nullptr, nullptr);
    wnd.SetTimer(1, 30, nullptr);
    EXPECT_EQ(2, wnd.RunModalLoop(MLF_NOKICKIDLE));
    EXPECT_EQ(0, wnd.kicks);
}

TEST(ModalLifetime, NothingIsLeft)
{
    CTestFrame frame;
    const auto runOnce = [&frame]()
    {
        CPlainDlg dialog(&frame, End(1));
        dialog.DoModal();
        CDialog modeless;
        modeless.Create(IDD_OWNER_DRAW, &frame);
        modeless.DestroyWindow();
        theApp.OnIdle(0);
    };
    const auto countWindows = []()
    {
        int count = 0;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(), [](HWND, LPARAM counter) __attribute__((stdcall))->BOOL {
                ++*reinterpret_cast<int*>(counter);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&count));
        return count;
    };
    for (int i = 0; i < 5; ++i)
    {
        runOnce();
    }
    const int objects = CountGdiObjects();
    const int windows = countWindows();
    ASSERT_GT(windows, 0);
    for (int i = 0; i < 20; ++i)
    {
        runOnce();
    }
    EXPECT_EQ(objects, CountGdiObjects());
    EXPECT_EQ(windows, countWindows());
}
