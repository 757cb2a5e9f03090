#include <afxwin.h>

#include <mbstring.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace
{
size_t CharacterLength(const char* p)
{
    return ::IsDBCSLeadByte(static_cast<BYTE>(*p)) && p[1] ? 2 : 1;
}

/// A character of the code page, one or two bytes, as a view.
struct Character
{
    const char* bytes;
    size_t length;

    bool Is(char ch) const { return length == 1 && *bytes == ch; }
    bool IsSpace() const
    {
        return length == 1 && (*bytes == ' ' || (*bytes >= '\t' && *bytes <= '\r'));
    }
    bool IsIn(LPCSTR set) const
    {
        for (const char* p = set; p && *p; p += CharacterLength(p))
        {
            if (CharacterLength(p) == length && std::memcmp(p, bytes, length) == 0)
            {
                return true;
            }
        }
        return false;
    }
};

/// Position of the first character at or after start that the test accepts; the length otherwise.
template <typename Test>
size_t FindCharacter(const std::string& text, size_t start, Test test)
{
    size_t i = start;
    while (i < text.size())
    {
        const size_t length = CharacterLength(text.c_str() + i);
        if (test(Character{text.c_str() + i, length}))
        {
            return i;
        }
        i += length;
    }
    return text.size();
}

/// Position behind the last character that the test doesn't accept.
template <typename Test>
size_t EndWithout(const std::string& text, Test test)
{
    size_t end = 0;
    for (size_t i = 0; i < text.size();)
    {
        const size_t length = CharacterLength(text.c_str() + i);
        const bool accepted = test(Character{text.c_str() + i, length});
        i += length;
        if (!accepted)
        {
            end = i;
        }
    }
    return end;
}

size_t Clamp(int value, size_t maximum)
{
    return value < 0 ? 0 : std::min(static_cast<size_t>(value), maximum);
}

/// A position of the text as its index; an unfit start gives the length, where nothing is found.
size_t StartIndex(int start, const std::string& text)
{
    return start < 0 ? text.size() : std::min(static_cast<size_t>(start), text.size());
}

std::string Printed(LPCSTR format, va_list args)
{
    va_list again;
    va_copy(again, args);
    const int length = format ? _vscprintf(format, again) : -1;
    va_end(again);
    if (length <= 0)
    {
        return std::string();
    }
    std::string text(static_cast<size_t>(length) + 1, '\0');
    _vsnprintf(&text[0], text.size(), format, args);
    text.resize(static_cast<size_t>(length));
    return text;
}

std::string Narrowed(LPCWSTR wide)
{
    const int capacity =
        wide ? ::WideCharToMultiByte(CP_ACP, 0, wide, -1, nullptr, 0, nullptr, nullptr) : 0;
    if (capacity <= 1)
    {
        return std::string();
    }
    std::string text(static_cast<size_t>(capacity), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, wide, -1, &text[0], capacity, nullptr, nullptr);
    text.pop_back();
    return text;
}
} // namespace

CStringA::CStringA(LPCSTR lpsz)
    : m_text(lpsz ? lpsz : "")
{
}

CStringA::CStringA(LPCSTR lpch, int nLength)
    : m_text(lpch && nLength > 0 ? std::string(lpch, static_cast<size_t>(nLength)) : std::string())
{
}

CStringA::CStringA(char ch, int nRepeat)
    : m_text(Clamp(nRepeat, m_text.max_size()), ch)
{
}

CStringA::CStringA(LPCWSTR lpsz)
    : m_text(Narrowed(lpsz))
{
}

CStringA::CStringA(std::string text)
    : m_text(std::move(text))
{
}

CStringA& CStringA::operator=(LPCSTR lpsz)
{
    // Through a copy: the text may be a part of this string.
    m_text = std::string(lpsz ? lpsz : "");
    return *this;
}

CStringA& CStringA::operator=(char ch)
{
    m_text.assign(1, ch);
    return *this;
}

char CStringA::GetAt(int nIndex) const
{
    return nIndex >= 0 && nIndex < GetLength() ? m_text[static_cast<size_t>(nIndex)] : '\0';
}

void CStringA::SetAt(int nIndex, char ch)
{
    if (nIndex >= 0 && nIndex < GetLength())
    {
        m_text[static_cast<size_t>(nIndex)] = ch;
    }
}

CStringA& CStringA::operator+=(const CStringA& str)
{
    m_text += str.m_text;
    return *this;
}

CStringA& CStringA::operator+=(LPCSTR lpsz)
{
    if (lpsz)
    {
        m_text += lpsz;
    }
    return *this;
}

CStringA& CStringA::operator+=(char ch)
{
    m_text += ch;
    return *this;
}

void AFX_CDECL CStringA::Format(LPCSTR lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    FormatV(lpszFormat, args);
    va_end(args);
}

void AFX_CDECL CStringA::Format(UINT nFormatID, ...)
{
    CStringA format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    m_text = Printed(format, args);
    va_end(args);
}

void CStringA::FormatV(LPCSTR lpszFormat, va_list args)
{
    m_text = Printed(lpszFormat, args);
}

void AFX_CDECL CStringA::AppendFormat(LPCSTR lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    AppendFormatV(lpszFormat, args);
    va_end(args);
}

void CStringA::AppendFormatV(LPCSTR lpszFormat, va_list args)
{
    m_text += Printed(lpszFormat, args);
}

int CStringA::Compare(LPCSTR lpsz) const
{
    return std::strcmp(m_text.c_str(), lpsz ? lpsz : "");
}

int CStringA::CompareNoCase(LPCSTR lpsz) const
{
    const char* other = lpsz ? lpsz : "";
    return _mbsicmp(reinterpret_cast<const unsigned char*>(m_text.c_str()),
                    reinterpret_cast<const unsigned char*>(other));
}

int CStringA::Find(char ch, int nStart) const
{
    const size_t i =
        FindCharacter(m_text, StartIndex(nStart, m_text), [ch](Character c) { return c.Is(ch); });
    return i < m_text.size() ? static_cast<int>(i) : -1;
}

int CStringA::Find(LPCSTR lpszSub, int nStart) const
{
    if (!lpszSub || nStart < 0 || nStart > GetLength())
    {
        return -1;
    }
    const size_t length = std::strlen(lpszSub);
    if (length == 0)
    {
        return nStart;
    }
    const size_t i =
        FindCharacter(m_text, static_cast<size_t>(nStart),
                      [&](Character c) { return std::strncmp(c.bytes, lpszSub, length) == 0; });
    return i < m_text.size() ? static_cast<int>(i) : -1;
}

int CStringA::ReverseFind(char ch) const
{
    int found = -1;
    for (int i = Find(ch); i >= 0; i = Find(ch, i + 1))
    {
        found = i;
    }
    return found;
}

int CStringA::FindOneOf(LPCSTR lpszCharSet) const
{
    const size_t i =
        FindCharacter(m_text, 0, [lpszCharSet](Character c) { return c.IsIn(lpszCharSet); });
    return i < m_text.size() ? static_cast<int>(i) : -1;
}

CStringA CStringA::Left(int nCount) const
{
    return CStringA(m_text.substr(0, Clamp(nCount, m_text.size())));
}

CStringA CStringA::Right(int nCount) const
{
    return CStringA(m_text.substr(m_text.size() - Clamp(nCount, m_text.size())));
}

CStringA CStringA::Mid(int nFirst) const
{
    return CStringA(m_text.substr(Clamp(nFirst, m_text.size())));
}

CStringA CStringA::Mid(int nFirst, int nCount) const
{
    return CStringA(m_text.substr(Clamp(nFirst, m_text.size()), Clamp(nCount, m_text.size())));
}

CStringA CStringA::SpanIncluding(LPCSTR lpszCharSet) const
{
    return CStringA(m_text.substr(
        0, FindCharacter(m_text, 0, [=](Character c) { return !c.IsIn(lpszCharSet); })));
}

CStringA CStringA::SpanExcluding(LPCSTR lpszCharSet) const
{
    return CStringA(m_text.substr(
        0, FindCharacter(m_text, 0, [=](Character c) { return c.IsIn(lpszCharSet); })));
}

CStringA& CStringA::Trim()
{
    return TrimRight().TrimLeft();
}

CStringA& CStringA::Trim(char chTarget)
{
    return TrimRight(chTarget).TrimLeft(chTarget);
}

CStringA& CStringA::Trim(LPCSTR lpszTargets)
{
    return TrimRight(lpszTargets).TrimLeft(lpszTargets);
}

CStringA& CStringA::TrimLeft()
{
    m_text.erase(0, FindCharacter(m_text, 0, [](Character c) { return !c.IsSpace(); }));
    return *this;
}

CStringA& CStringA::TrimLeft(char chTarget)
{
    m_text.erase(0, FindCharacter(m_text, 0, [=](Character c) { return !c.Is(chTarget); }));
    return *this;
}

CStringA& CStringA::TrimLeft(LPCSTR lpszTargets)
{
    m_text.erase(0, FindCharacter(m_text, 0, [=](Character c) { return !c.IsIn(lpszTargets); }));
    return *this;
}

CStringA& CStringA::TrimRight()
{
    m_text.erase(EndWithout(m_text, [](Character c) { return c.IsSpace(); }));
    return *this;
}

CStringA& CStringA::TrimRight(char chTarget)
{
    m_text.erase(EndWithout(m_text, [=](Character c) { return c.Is(chTarget); }));
    return *this;
}

CStringA& CStringA::TrimRight(LPCSTR lpszTargets)
{
    m_text.erase(EndWithout(m_text, [=](Character c) { return c.IsIn(lpszTargets); }));
    return *this;
}

CStringA& CStringA::MakeUpper()
{
    ::CharUpperBuffA(&m_text[0], static_cast<DWORD>(m_text.size()));
    return *this;
}

CStringA& CStringA::MakeLower()
{
    ::CharLowerBuffA(&m_text[0], static_cast<DWORD>(m_text.size()));
    return *this;
}

CStringA& CStringA::MakeReverse()
{
    std::string reversed;
    for (size_t i = 0; i < m_text.size();)
    {
        const size_t length = CharacterLength(m_text.c_str() + i);
        reversed.insert(0, m_text, i, length);
        i += length;
    }
    m_text = reversed;
    return *this;
}

int CStringA::Replace(char chOld, char chNew)
{
    int count = 0;
    for (int i = Find(chOld); i >= 0 && chOld != chNew; i = Find(chOld, i + 1))
    {
        SetAt(i, chNew);
        ++count;
    }
    return count;
}

int CStringA::Replace(LPCSTR lpszOld, LPCSTR lpszNew)
{
    const CStringA oldText(lpszOld);
    const CStringA newText(lpszNew);
    if (oldText.IsEmpty())
    {
        return 0;
    }
    int count = 0;
    for (int i = Find(oldText); i >= 0; i = Find(oldText, i + newText.GetLength()))
    {
        m_text.replace(static_cast<size_t>(i), oldText.m_text.size(), newText.m_text);
        ++count;
    }
    return count;
}

int CStringA::Remove(char ch)
{
    int count = 0;
    for (int i = Find(ch); i >= 0; i = Find(ch, i))
    {
        m_text.erase(static_cast<size_t>(i), 1);
        ++count;
    }
    return count;
}

int CStringA::Insert(int nIndex, char ch)
{
    m_text.insert(Clamp(nIndex, m_text.size()), 1, ch);
    return GetLength();
}

int CStringA::Insert(int nIndex, LPCSTR lpsz)
{
    m_text.insert(Clamp(nIndex, m_text.size()), std::string(lpsz ? lpsz : ""));
    return GetLength();
}

int CStringA::Delete(int nIndex, int nCount)
{
    m_text.erase(Clamp(nIndex, m_text.size()), Clamp(nCount, m_text.size()));
    return GetLength();
}

CStringA CStringA::Tokenize(LPCSTR lpszTokens, int& iStart) const
{
    const auto isDelimiter = [=](Character c)
    {
        return c.IsIn(lpszTokens);
    };
    const size_t begin = FindCharacter(m_text, StartIndex(iStart, m_text),
                                       [&](Character c) { return !isDelimiter(c); });
    if (begin == m_text.size())
    {
        iStart = -1;
        return CStringA();
    }
    const size_t end = FindCharacter(m_text, begin, isDelimiter);
    // Behind the delimiter, which may be the NUL at the end.
    iStart = static_cast<int>(end + CharacterLength(m_text.c_str() + end));
    return CStringA(m_text.substr(begin, end - begin));
}

LPSTR CStringA::GetBuffer(int nMinLength)
{
    // The text keeps its old characters; room behind them is zero.
    m_text.resize(std::max(m_text.size(), Clamp(nMinLength, m_text.max_size())));
    return &m_text[0];
}

LPSTR CStringA::GetBufferSetLength(int nLength)
{
    m_text.resize(Clamp(nLength, m_text.max_size()));
    return &m_text[0];
}

void CStringA::ReleaseBuffer(int nNewLength)
{
    if (nNewLength < 0)
    {
        nNewLength = static_cast<int>(std::strlen(m_text.c_str()));
    }
    m_text.resize(Clamp(nNewLength, m_text.size()));
}

void CStringA::Truncate(int nNewLength)
{
    m_text.resize(Clamp(nNewLength, m_text.size()));
}

void CStringA::Preallocate(int nLength)
{
    m_text.reserve(Clamp(nLength, m_text.max_size()));
}

BOOL CStringA::LoadString(UINT nID)
{
    return LoadString(AfxGetResourceHandle(), nID);
}

BOOL CStringA::LoadString(HINSTANCE hInstance, UINT nID)
{
    // The resource itself, which has no NUL at its end: so no length limits what is read.
    LPWSTR resource = nullptr;
    const int length =
        ::LoadStringW(hInstance, nID, reinterpret_cast<LPWSTR>(static_cast<void*>(&resource)), 0);
    if (length <= 0)
    {
        Empty();
        return FALSE;
    }
    m_text = Narrowed(std::wstring(resource, static_cast<size_t>(length)).c_str());
    return TRUE;
}

CStringA operator+(const CStringA& a, const CStringA& b)
{
    return CStringA(a.m_text + b.m_text);
}

CStringA operator+(const CStringA& a, LPCSTR b)
{
    return CStringA(a.m_text + (b ? b : ""));
}

CStringA operator+(LPCSTR a, const CStringA& b)
{
    return CStringA((a ? a : "") + b.m_text);
}

CStringA operator+(const CStringA& a, char b)
{
    return CStringA(a.m_text + b);
}

CStringA operator+(char a, const CStringA& b)
{
    return CStringA(a + b.m_text);
}
