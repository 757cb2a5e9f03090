#include "tests/skin/TestDlg.h"

#include "tests/skin/SkinTestSupport.h"

#include <algorithm>
#include <stdexcept>

namespace
{

constexpr WORD kFontSize = 9;

} // namespace

CDialogTemplate::CDialogTemplate(DWORD style, short x, short y, short width, short height,
                                 const std::vector<TemplateItem>& items)
{
    Add(style | DS_SETFONT);
    Add(0);
    words.push_back(static_cast<WORD>(items.size()));
    for (const short value : {x, y, width, height})
        words.push_back(static_cast<WORD>(value));
    words.push_back(0); // no menu
    words.push_back(0); // the dialog class
    AddText("");
    words.push_back(kFontSize);
    AddText("宋体");
    for (const TemplateItem& item : items)
    {
        AlignItem();
        Add(item.style);
        Add(0);
        for (const short value : {item.x, item.y, item.width, item.height})
            words.push_back(static_cast<WORD>(value));
        words.push_back(item.id);
        AddText(item.className);
        AddText(item.text);
        words.push_back(0); // no creation data
    }
}

void CDialogTemplate::Add(DWORD value)
{
    words.push_back(LOWORD(value));
    words.push_back(HIWORD(value));
}

void CDialogTemplate::AddText(const char* text)
{
    wchar_t wide[2048];
    const int length = MultiByteToWideChar(936, 0, text, -1, wide, 2048);
    words.insert(words.end(), wide, wide + length);
}

void CDialogTemplate::AlignItem()
{
    if (words.size() % 2)
        words.push_back(0);
}

CTestDlg::CTestDlg(const std::vector<TemplateItem>& items, Fill newFill, short x)
    : fill(std::move(newFill))
{
    // A mouse that happens to rest on a control would take part.
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);
    const CDialogTemplate dialog(WS_POPUP | WS_VISIBLE, x, 0, 200, 220, items);
    CreateIndirect(dialog.Get());
    PumpMessages();
    commands.clear();
}

CTestDlg::~CTestDlg()
{
    DestroyWindow();
    DestroySubclassedCtrls();
}

BOOL CTestDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    if (fill)
        fill(*this);
    SubclassChildren(m_hWnd);
    return TRUE;
}

BOOL CTestDlg::OnCommand(WPARAM wParam, LPARAM lParam)
{
    commands.emplace_back(LOWORD(wParam), HIWORD(wParam));
    lastSender = reinterpret_cast<HWND>(lParam);
    return CDialog::OnCommand(wParam, lParam);
}

int CTestDlg::CountCommands(int id, int code) const
{
    return static_cast<int>(std::count(commands.begin(), commands.end(), std::pair(id, code)));
}

void CTestDlg::MissingControl(UINT id)
{
    throw std::runtime_error("no drawn control of that class has the id " + std::to_string(id));
}
