#pragma once

#include "mfc/parts/Platform.h"

/// Writes a formatted line to the debugger. Lines longer than 511 characters are cut.
void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...) __attribute__((format(ms_printf, 1, 2)));

/// Says which assertion failed and offers to break. Returns TRUE when the caller shall break.
BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);

#ifdef _DEBUG
#define ASSERT(f) ((void)((f) || !AfxAssertFailedLine(__FILE__, __LINE__) || (DebugBreak(), 0)))
#define VERIFY(f) ASSERT(f)
#define TRACE AfxTrace
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define TRACE(...) ((void)0)
#endif

#define TRACE0(sz) TRACE("%s", sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)
#define ASSERT_VALID(pOb) ASSERT((pOb) != nullptr)
