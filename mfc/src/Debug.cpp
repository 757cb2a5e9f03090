#include <afx.h>

#include <cstdarg>
#include <cstdio>

void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...)
{
    char line[512];
    va_list args;
    va_start(args, lpszFormat);
    _vsnprintf(line, sizeof(line) - 1, lpszFormat, args);
    va_end(args);
    line[sizeof(line) - 1] = '\0';
    ::OutputDebugStringA(line);
}

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    CString text;
    text.Format("Assertion failed: %s, line %d", lpszFileName, nLine);
    ::OutputDebugStringA(text + "\n");
    const int answer =
        ::MessageBoxA(nullptr, text, "Debug", MB_TASKMODAL | MB_ICONHAND | MB_ABORTRETRYIGNORE);
    if (answer == IDABORT)
    {
        ::TerminateProcess(::GetCurrentProcess(), 3);
    }
    return answer == IDRETRY;
}
