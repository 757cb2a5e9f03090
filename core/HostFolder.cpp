#include "core/HostFolder.h"

#include <windows.h>

std::string FolderOf(const std::string& path)
{
    size_t end = path.size();
    for (size_t i = 0; i < path.size(); ++i)
    {
        if (IsDBCSLeadByteEx(936, static_cast<BYTE>(path[i])))
            ++i;
        else if (path[i] == '\\')
            end = i;
    }
    return path.substr(0, end);
}

std::string HostFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof(path));
    return FolderOf(path);
}
