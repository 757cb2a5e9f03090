#pragma once

/// Extensions of the framework. The subset needs none of them; the header stands for sources
/// that include it by custom.

#include <afxwin.h>
