#pragma once

#include "mfc/parts/Platform.h"

#include <cstdarg>
#include <string>

/// Narrow string by value. Positions and lengths count bytes; searching, trimming and changing of
/// case walk characters of the ANSI code page, so that the second byte of a double-byte character
/// is never taken for a character of its own.
///
/// Hand a CStringA to a printf-like function only as (LPCSTR)text.
class CStringA
{
public:
    CStringA() = default;
    CStringA(LPCSTR lpsz); ///< null gives the empty string
    CStringA(LPCSTR lpch, int nLength);
    explicit CStringA(char ch, int nRepeat = 1);
    explicit CStringA(LPCWSTR lpsz); ///< converted to the ANSI code page
    CStringA(const CStringA&) = default;
    CStringA(CStringA&&) = default;
    CStringA& operator=(const CStringA&) = default;
    CStringA& operator=(CStringA&&) = default;
    CStringA& operator=(LPCSTR lpsz);
    CStringA& operator=(char ch);

    int GetLength() const { return static_cast<int>(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    LPCSTR GetString() const { return m_text.c_str(); }
    operator LPCSTR() const { return m_text.c_str(); }

    /// The character at a position; 0 outside of the text.
    char GetAt(int nIndex) const;
    char operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch);

    CStringA& operator+=(const CStringA& str);
    CStringA& operator+=(LPCSTR lpsz);
    CStringA& operator+=(char ch);
    void Append(LPCSTR lpsz) { *this += lpsz; }
    void AppendChar(char ch) { *this += ch; }

    void AFX_CDECL Format(LPCSTR lpszFormat, ...) __attribute__((format(ms_printf, 2, 3)));
    void AFX_CDECL Format(UINT nFormatID, ...);
    void FormatV(LPCSTR lpszFormat, va_list args) __attribute__((format(ms_printf, 2, 0)));
    void AFX_CDECL AppendFormat(LPCSTR lpszFormat, ...) __attribute__((format(ms_printf, 2, 3)));
    void AppendFormatV(LPCSTR lpszFormat, va_list args) __attribute__((format(ms_printf, 2, 0)));

    int Compare(LPCSTR lpsz) const;
    int CompareNoCase(LPCSTR lpsz) const;

    /// The first position at or after nStart; -1 when there is none.
    int Find(char ch, int nStart = 0) const;
    int Find(LPCSTR lpszSub, int nStart = 0) const;
    int ReverseFind(char ch) const;
    int FindOneOf(LPCSTR lpszCharSet) const;

    CStringA Left(int nCount) const;
    CStringA Right(int nCount) const;
    CStringA Mid(int nFirst) const;
    CStringA Mid(int nFirst, int nCount) const;
    /// The leading part whose characters are all in the set, or none of them.
    CStringA SpanIncluding(LPCSTR lpszCharSet) const;
    CStringA SpanExcluding(LPCSTR lpszCharSet) const;

    CStringA& Trim();
    CStringA& Trim(char chTarget);
    CStringA& Trim(LPCSTR lpszTargets);
    CStringA& TrimLeft();
    CStringA& TrimLeft(char chTarget);
    CStringA& TrimLeft(LPCSTR lpszTargets);
    CStringA& TrimRight();
    CStringA& TrimRight(char chTarget);
    CStringA& TrimRight(LPCSTR lpszTargets);

    CStringA& MakeUpper();
    CStringA& MakeLower();
    CStringA& MakeReverse();

    /// Number of replaced characters or substrings. An empty old text replaces nothing.
    int Replace(char chOld, char chNew);
    int Replace(LPCSTR lpszOld, LPCSTR lpszNew);
    /// Number of removed characters.
    int Remove(char ch);
    /// These return the new length. A position behind the end inserts at the end.
    int Insert(int nIndex, char ch);
    int Insert(int nIndex, LPCSTR lpsz);
    int Delete(int nIndex, int nCount = 1);

    /// The next token behind position iStart, which moves on; leading delimiters are skipped.
    /// At the end of the text iStart becomes -1 and the token is empty.
    CStringA Tokenize(LPCSTR lpszTokens, int& iStart) const;

    /// Room for nMinLength characters and a NUL, valid until the next change of the string.
    /// ReleaseBuffer must follow once it was written.
    LPSTR GetBuffer(int nMinLength);
    LPSTR GetBuffer() { return GetBuffer(GetLength()); }
    LPSTR GetBufferSetLength(int nLength);
    /// -1: the text ends at its first NUL.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength); }
    /// Cuts the text to a length.
    void Truncate(int nNewLength);
    void Preallocate(int nLength);

    /// From the string table of the module's resources; FALSE and empty when it isn't there.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);

    friend CStringA operator+(const CStringA& a, const CStringA& b);
    friend CStringA operator+(const CStringA& a, LPCSTR b);
    friend CStringA operator+(LPCSTR a, const CStringA& b);
    friend CStringA operator+(const CStringA& a, char b);
    friend CStringA operator+(char a, const CStringA& b);

private:
    explicit CStringA(std::string text);

    std::string m_text;
};

using CString = CStringA;

// One set of comparisons for every pairing of string and text.
#define AFX_STRING_COMPARISON(op)                                                                  \
    inline bool operator op(const CStringA& a, const CStringA& b)                                  \
    {                                                                                              \
        return a.Compare(b) op 0;                                                                  \
    }                                                                                              \
    inline bool operator op(const CStringA& a, LPCSTR b)                                           \
    {                                                                                              \
        return a.Compare(b) op 0;                                                                  \
    }                                                                                              \
    inline bool operator op(LPCSTR a, const CStringA& b)                                           \
    {                                                                                              \
        return 0 op b.Compare(a);                                                                  \
    }

AFX_STRING_COMPARISON(==)
AFX_STRING_COMPARISON(!=)
AFX_STRING_COMPARISON(<)
AFX_STRING_COMPARISON(>)
AFX_STRING_COMPARISON(<=)
AFX_STRING_COMPARISON(>=)
#undef AFX_STRING_COMPARISON
