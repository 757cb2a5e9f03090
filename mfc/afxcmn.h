#pragma once

/// Controls beyond the stock ones: rich edit and up-down.

#include <afxwin.h>

#include "mfc/parts/CommonControls.h"
