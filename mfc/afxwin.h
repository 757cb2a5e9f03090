#pragma once

/// Windows, dialogs, stock controls, drawing and the application object.

#include <afx.h>

#include "mfc/parts/ModuleState.h"

#include "mfc/parts/CmdTarget.h"
#include "mfc/parts/GdiObject.h"

#include "mfc/parts/DC.h"
#include "mfc/parts/Wnd.h"

#include "mfc/parts/Controls.h"
#include "mfc/parts/Dialog.h"
#include "mfc/parts/MessageMap.h"
#include "mfc/parts/WinThread.h"

#include "mfc/parts/DataExchange.h"
#include "mfc/parts/WinApp.h"
