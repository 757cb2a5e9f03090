// The life of a DLL that has an application object, in a process that has one of its own.

#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestDll.h"

#include <gtest/gtest.h>

namespace
{
class CLoadedDll
{
public:
    explicit CLoadedDll(const char* wish = "")
    {
        ::SetEnvironmentVariable(kDllLog, wish);
        m_module = ::LoadLibrary("mfc_test_dll.dll");
    }
    ~CLoadedDll() { Free(); }
    CLoadedDll(const CLoadedDll&) = delete;
    CLoadedDll& operator=(const CLoadedDll&) = delete;

    HMODULE Module() const { return m_module; }
    template <typename Function>
    Function Get(const char* name) const
    {
        return reinterpret_cast<Function>(
            reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }
    void Free()
    {
        if (m_module)
        {
            ::FreeLibrary(m_module);
            m_module = nullptr;
        }
    }

private:
    HMODULE m_module;
};

CString Log()
{
    char log[512] = "";
    ::GetEnvironmentVariable(kDllLog, log, sizeof(log));
    return log;
}
} // namespace

TEST(Dll, InitAndExitInstanceRunOnce)
{
    CLoadedDll dll;
    ASSERT_NE(nullptr, dll.Module());
    EXPECT_STREQ("init;", Log());
    {
        const HMODULE again = ::LoadLibrary("mfc_test_dll.dll");
        EXPECT_EQ(dll.Module(), again);
        ::FreeLibrary(again);
    }
    EXPECT_STREQ("init;", Log());
    dll.Free();
    EXPECT_STREQ("init;exit;destroyed;", Log());
    EXPECT_EQ(nullptr, ::GetModuleHandle("mfc_test_dll.dll"));
}

TEST(Dll, RefusalFailsTheLoad)
{
    CLoadedDll refused(kRefuse);
    EXPECT_EQ(nullptr, refused.Module());
    EXPECT_STREQ("refuse;init;exit;destroyed;", Log());
    CLoadedDll dll;
    EXPECT_NE(nullptr, dll.Module()) << "and leaves nothing that hinders the next";
}

TEST(Dll, ModalDialogAsksItsApplicationObject)
{
    CLoadedDll dll;
    ASSERT_NE(nullptr, dll.Module());
    CTestFrame host;
    host.SetActiveWindow();
    EXPECT_EQ(91, dll.Get<RunDialogFunction>("RunDialog")());
    EXPECT_TRUE(host.IsWindowEnabled());
    EXPECT_EQ(host.m_hWnd, ::GetActiveWindow());
    EXPECT_TRUE(dll.Get<IsStateUntouchedFunction>("IsStateUntouched")());
}

TEST(Dll, ModalDialogRunsWhileTheDllIsLoaded)
{
    CLoadedDll dll(kModal);
    ASSERT_NE(nullptr, dll.Module());
    EXPECT_STREQ("modal;init;dialog;", Log());
}

TEST(Dll, WindowsOfBothModulesLiveSideBySide)
{
    CLoadedDll dll;
    ASSERT_NE(nullptr, dll.Module());
    CTestFrame host;
    const HWND window = dll.Get<MakeWindowFunction>("MakeWindow")(host);
    ASSERT_NE(nullptr, window);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window)) << "it is an object of the other module";
    EXPECT_EQ(reinterpret_cast<LRESULT>(dll.Module()), ::SendMessage(window, WM_APP, 0, 0));
    EXPECT_TRUE(dll.Get<IsStateUntouchedFunction>("IsStateUntouched")());
    CWnd own;
    own.Create(nullptr, "", 0, CRect(0, 0, 5, 5), &host, 2);
    EXPECT_EQ(&own, CWnd::FromHandlePermanent(own.m_hWnd));
    own.DestroyWindow();
}

TEST(Dll, ItsWindowClassesGoWithIt)
{
    CLoadedDll dll;
    ASSERT_NE(nullptr, dll.Module());
    const CString name(dll.Get<ClassNameFunction>("RegisteredClass")());
    const HINSTANCE module = dll.Module();
    WNDCLASS info;
    EXPECT_TRUE(::GetClassInfo(module, name, &info));
    dll.Free();
    EXPECT_FALSE(::GetClassInfo(module, name, &info));
}

TEST(Dll, CanBeLoadedAsOftenAsOneLikes)
{
    // More often than there are fiber-local slots in a process.
    for (int i = 0; i < 150; ++i)
    {
        CLoadedDll dll;
        ASSERT_NE(nullptr, dll.Module()) << i;
        ASSERT_TRUE(dll.Get<IsStateUntouchedFunction>("IsStateUntouched")());
    }
    const DWORD slot = ::FlsAlloc(nullptr);
    EXPECT_NE(FLS_OUT_OF_INDEXES, slot);
    ::FlsFree(slot);
}
