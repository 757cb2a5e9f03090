// A window with drawn scroll bars.
#pragma once

#include "skin/scroll/CoolSBRouting.h"

class CoolSBWnd : public CoolSBRouting<CWnd>
{
};
