#include "pages/SoundFile.h"

#include <commdlg.h>

namespace
{

constexpr DWORD kPathCapacity = 1024;

/// Sets the working directory back at its end: every relative path of the module rests on it.
class CWorkingDirectoryKept
{
public:
    CWorkingDirectoryKept() { GetCurrentDirectoryA(sizeof(m_folder), m_folder); }
    ~CWorkingDirectoryKept() { SetCurrentDirectoryA(m_folder); }
    CWorkingDirectoryKept(const CWorkingDirectoryKept&) = delete;
    CWorkingDirectoryKept& operator=(const CWorkingDirectoryKept&) = delete;

private:
    char m_folder[kPathCapacity] = "";
};

} // namespace

std::string ChooseSoundFile(HWND owner)
{
    const CWorkingDirectoryKept kept;
    char path[kPathCapacity] = "";
    OPENFILENAMEA choice = {};
    choice.lStructSize = sizeof(choice);
    choice.hwndOwner = owner;
    choice.lpstrFilter = "音波文件 (*.wav)\0*.wav\0";
    choice.lpstrFile = path;
    choice.nMaxFile = sizeof(path);
    choice.Flags = OFN_PATHMUSTEXIST;
    return GetOpenFileNameA(&choice) ? path : "";
}
