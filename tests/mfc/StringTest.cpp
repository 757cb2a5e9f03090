#include "tests/mfc/TestApp.h"
#include "tests/mfc/TestResources.h"

#include <gtest/gtest.h>

#include <cstdarg>

namespace
{
CString FormattedV(LPCSTR format, ...)
{
    CString text("old");
    va_list args;
    va_start(args, format);
    text.FormatV(format, args);
    va_end(args);
    return text;
}
} // namespace

TEST(StringEnvironment, RunsInCodePage936)
{
    ASSERT_EQ(936u, ::GetACP()) << "Chinese texts mean nothing in another code page";
}

TEST(String, Construction)
{
    EXPECT_TRUE(CString().IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCSTR>(nullptr)).IsEmpty());
    EXPECT_STREQ("abc", CString("abc"));
    EXPECT_STREQ("ab", CString("abc", 2));
    EXPECT_TRUE(CString("abc", 0).IsEmpty());
    EXPECT_TRUE(CString("abc", -1).IsEmpty());
    EXPECT_STREQ("xxx", CString('x', 3));
    EXPECT_TRUE(CString('x', 0).IsEmpty());
    EXPECT_STREQ("你好", CString(L"你好"));
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr)).IsEmpty());

    const CString original("abc");
    CString copy(original);
    copy += "d";
    EXPECT_STREQ("abc", original);
    EXPECT_STREQ("abcd", copy);
}

TEST(String, Assignment)
{
    CString text("old");
    text = "new";
    EXPECT_STREQ("new", text);
    text = 'c';
    EXPECT_STREQ("c", text);
    text = static_cast<LPCSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());

    text = "shared";
    text = static_cast<LPCSTR>(text) + 2;
    EXPECT_STREQ("ared", text) << "a part of itself";
}

TEST(String, Concatenation)
{
    const CString a("a");
    EXPECT_STREQ("ab", a + CString("b"));
    EXPECT_STREQ("ab", a + "b");
    EXPECT_STREQ("ba", "b" + a);
    EXPECT_STREQ("ax", a + 'x');
    EXPECT_STREQ("xa", 'x' + a);

    CString text("1");
    text += CString("2");
    text += "3";
    text += '4';
    text += static_cast<LPCSTR>(nullptr);
    text.Append("5");
    text.AppendChar('6');
    EXPECT_STREQ("123456", text);
    EXPECT_EQ(6, text.GetLength());
}

TEST(String, Comparison)
{
    const CString a("abc");
    EXPECT_TRUE(a == CString("abc"));
    EXPECT_TRUE(a == "abc");
    EXPECT_TRUE("abc" == a);
    EXPECT_TRUE(a != "ABC");
    EXPECT_TRUE(a < "abd");
    EXPECT_TRUE("abb" < a);
    EXPECT_TRUE(a > CString("abb"));
    EXPECT_TRUE(a <= "abc");
    EXPECT_TRUE(a >= "abc");
    EXPECT_LT(a.Compare("b"), 0);
    EXPECT_EQ(0, a.CompareNoCase("ABC"));
    EXPECT_GT(a.CompareNoCase("ABB"), 0);
    EXPECT_TRUE(CString() == static_cast<LPCSTR>(nullptr));
}

TEST(String, CharactersByIndex)
{
    CString text("abc");
    EXPECT_EQ('b', text[1]);
    EXPECT_EQ('c', text.GetAt(2));
    EXPECT_EQ('\0', text.GetAt(3));
    EXPECT_EQ('\0', text.GetAt(-1));
    text.SetAt(1, 'x');
    text.SetAt(3, 'y');
    text.SetAt(-1, 'z');
    EXPECT_STREQ("axc", text);
}

TEST(String, Format)
{
    CString text;
    text.Format("%d-%s-%.2f", 7, "x", 1.5);
    EXPECT_STREQ("7-x-1.50", text);
    text.Format("%s%s", static_cast<LPCSTR>(text), "!");
    EXPECT_STREQ("7-x-1.50!", text) << "an argument may be the string itself";
    text.AppendFormat("%c", 'e');
    EXPECT_STREQ("7-x-1.50!e", text);
    EXPECT_STREQ("3", FormattedV("%d", 3));
    EXPECT_STREQ("", FormattedV("%s", ""));

    const CString longText('x', 5000);
    text.Format("%s|", static_cast<LPCSTR>(longText));
    EXPECT_EQ(5001, text.GetLength());
    EXPECT_EQ('|', text[5000]);
}

TEST(String, FormatFromResource)
{
    CString text;
    text.Format(IDS_FORMAT, 3, "five");
    EXPECT_STREQ("3 of five", text);
}

TEST(String, Find)
{
    const CString text("a,b,c");
    EXPECT_EQ(1, text.Find(','));
    EXPECT_EQ(3, text.Find(',', 2));
    EXPECT_EQ(-1, text.Find(',', 4));
    EXPECT_EQ(-1, text.Find(',', 99));
    EXPECT_EQ(-1, text.Find(',', -1));
    EXPECT_EQ(2, text.Find("b,"));
    EXPECT_EQ(-1, text.Find("b,", 3));
    EXPECT_EQ(-1, text.Find("b,", 99));
    EXPECT_EQ(-1, text.Find("bb"));
    EXPECT_EQ(-1, text.Find(static_cast<LPCSTR>(nullptr)));
    EXPECT_EQ(3, text.ReverseFind(','));
    EXPECT_EQ(-1, text.ReverseFind(';'));
    EXPECT_EQ(1, text.FindOneOf(";,"));
    EXPECT_EQ(-1, text.FindOneOf(";!"));
}

TEST(String, SecondBytesAreNoCharacters)
{
    // The second byte of the first character is a backslash.
    const CString path("誠\\file");
    ASSERT_EQ('\\', static_cast<LPCSTR>(path)[1]);
    EXPECT_EQ(2, path.Find('\\'));
    EXPECT_EQ(2, path.ReverseFind('\\'));
    EXPECT_EQ(2, path.FindOneOf("\\"));
    EXPECT_EQ(2, path.Find("\\file"));

    const CString only("誠");
    EXPECT_EQ(-1, only.ReverseFind('\\'));
    CString trimmed(only);
    trimmed.TrimRight('\\');
    EXPECT_STREQ(only, trimmed);
    CString replaced(path);
    EXPECT_EQ(1, replaced.Replace('\\', '/'));
    EXPECT_STREQ("誠/file", replaced);
}

TEST(String, Parts)
{
    const CString text("abcdef");
    EXPECT_STREQ("ab", text.Left(2));
    EXPECT_STREQ("", text.Left(-1));
    EXPECT_STREQ("abcdef", text.Left(99));
    EXPECT_STREQ("ef", text.Right(2));
    EXPECT_STREQ("", text.Right(-1));
    EXPECT_STREQ("abcdef", text.Right(99));
    EXPECT_STREQ("cdef", text.Mid(2));
    EXPECT_STREQ("cd", text.Mid(2, 2));
    EXPECT_STREQ("ef", text.Mid(4, 99));
    EXPECT_STREQ("", text.Mid(99));
    EXPECT_STREQ("", text.Mid(99, 1));
    EXPECT_STREQ("ab", text.Mid(-5, 2));
    EXPECT_STREQ("abc", text.SpanIncluding("cba"));
    EXPECT_STREQ("abc", text.SpanExcluding("fd"));
}

TEST(String, Trim)
{
    EXPECT_STREQ("a b", CString(" \t\r\n a b \n").Trim());
    EXPECT_STREQ("a ", CString("  a ").TrimLeft());
    EXPECT_STREQ("  a", CString("  a ").TrimRight());
    EXPECT_STREQ("", CString("   ").Trim());
    EXPECT_STREQ("a-b", CString("--a-b-").Trim('-'));
    EXPECT_STREQ("a-", CString("-a-").TrimLeft('-'));
    EXPECT_STREQ("-a", CString("-a-").TrimRight('-'));
    EXPECT_STREQ("a", CString("-+a+-").Trim("+-"));
    EXPECT_STREQ("a+-", CString("-+a+-").TrimLeft("+-"));
    EXPECT_STREQ("-+a", CString("-+a+-").TrimRight("+-"));
    EXPECT_STREQ("中文", CString(" 中文 ").Trim());
}

TEST(String, ChangeOfCase)
{
    CString text("aB1中");
    EXPECT_STREQ("AB1中", text.MakeUpper());
    EXPECT_STREQ("ab1中", text.MakeLower());
    EXPECT_STREQ("中1ba", text.MakeReverse());
    EXPECT_STREQ("", CString().MakeUpper());
}

TEST(String, Edit)
{
    CString text("a-b-c");
    EXPECT_EQ(2, text.Replace('-', '+'));
    EXPECT_EQ(2, text.Replace("+", "--"));
    EXPECT_STREQ("a--b--c", text);
    EXPECT_EQ(2, text.Replace("--", ""));
    EXPECT_STREQ("abc", text);
    EXPECT_EQ(0, text.Replace("", "x"));
    EXPECT_EQ(0, text.Replace('a', 'a'));
    EXPECT_EQ(1, text.Replace("b", "bb")) << "what was put in is not searched again";
    EXPECT_STREQ("abbc", text);

    EXPECT_EQ(2, text.Remove('b'));
    EXPECT_STREQ("ac", text);
    EXPECT_EQ(3, text.Insert(1, 'b'));
    EXPECT_EQ(5, text.Insert(99, "de"));
    EXPECT_STREQ("abcde", text);
    EXPECT_EQ(6, text.Insert(-1, "_"));
    EXPECT_EQ(5, text.Delete(0));
    EXPECT_EQ(3, text.Delete(1, 2));
    EXPECT_EQ(3, text.Delete(99, 2));
    EXPECT_EQ(1, text.Delete(1, 99));
    EXPECT_STREQ("a", text);
    text.Empty();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, Buffer)
{
    CString text("abc");
    LPSTR buffer = text.GetBuffer(100);
    EXPECT_STREQ("abc", buffer);
    lstrcpyA(buffer, "changed");
    text.ReleaseBuffer();
    EXPECT_EQ(7, text.GetLength());
    EXPECT_STREQ("changed", text);

    text.GetBuffer(20);
    text.ReleaseBuffer(2);
    EXPECT_STREQ("ch", text);
    lstrcpyA(text.GetBufferSetLength(4), "wxyz");
    text.ReleaseBufferSetLength(4);
    EXPECT_STREQ("wxyz", text);
    text.Truncate(1);
    EXPECT_STREQ("w", text);
    EXPECT_STREQ("w", text.GetBuffer());
}

TEST(String, Tokenize)
{
    const CString text(";;a;,b;");
    int position = 0;
    EXPECT_STREQ("a", text.Tokenize(";,", position));
    EXPECT_STREQ("b", text.Tokenize(";,", position));
    EXPECT_NE(-1, position);
    EXPECT_STREQ("", text.Tokenize(";,", position));
    EXPECT_EQ(-1, position);
    EXPECT_STREQ("", text.Tokenize(";,", position));

    position = 0;
    EXPECT_STREQ("last", CString("last").Tokenize(";", position));
    EXPECT_STREQ("", CString("last").Tokenize(";", position));
    EXPECT_EQ(-1, position);
}

TEST(String, LoadsFromTheStringTable)
{
    CString text("old");
    EXPECT_TRUE(text.LoadString(IDS_HELLO));
    EXPECT_STREQ("你好 hello", text);
    EXPECT_FALSE(text.LoadString(9999));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text.LoadString(AfxGetInstanceHandle(), IDS_HELLO));
    EXPECT_STREQ("你好 hello", text);
}
