#include "core/HostHooks.h"

#include <map>

namespace
{

ZorvaneHostCallback hostCallback = nullptr;

std::map<int, bool>& Flags()
{
    static std::map<int, bool> flags;
    return flags;
}

} // namespace

void SetHostCallback(ZorvaneHostCallback callback)
{
    hostCallback = callback;
}

unsigned long CallHost(ZorvaneHostRequest request, unsigned int argument)
{
    return hostCallback(request, argument, 0);
}

void SetSpecialUI(SpecialUI key, bool on)
{
    Flags()[key] = on;
}

bool GetSpecialUI(int key)
{
    const auto flag = Flags().find(key);
    return flag != Flags().end() && flag->second;
}
