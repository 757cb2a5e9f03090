#pragma once

/* Identifiers for resource scripts and for sources that share them. Read by the resource compiler
   as well, so macros only. */

#include <winresrc.h>

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

/* Title of the application in the string table; a CWinApp without a name takes it. */
#define AFX_IDS_APP_TITLE 0xE000
