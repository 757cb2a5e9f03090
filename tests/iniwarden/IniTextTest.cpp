#include "iniwarden/IniText.h"

#include <clocale>
#include <gtest/gtest.h>

namespace
{
const std::string kFile = "; head\r\n"
                          "[TradeConfig]\r\n"
                          "iLockScreen=10\r\n"
                          "# note\r\n"
                          "szPath=.\\a b.wav\r\n"
                          "\r\n"
                          "[Other]\r\n"
                          "FirstRun=0\r\n";

std::string With(const std::string& text, const std::string& section, const std::string& key,
                 const std::string& value)
{
    return IniText(text).With(section, key, value);
}

std::string Find(const std::string& text, const std::string& section, const std::string& key)
{
    return IniText(text).Find(section, key).value_or("<absent>");
}
} // namespace

TEST(IniTextFind, GivesTheValueOfAKey)
{
    EXPECT_EQ("10", Find(kFile, "TradeConfig", "iLockScreen"));
    EXPECT_EQ(".\\a b.wav", Find(kFile, "TradeConfig", "szPath"));
    EXPECT_EQ("0", Find(kFile, "Other", "FirstRun"));
}

TEST(IniTextFind, GivesNothingForWhatIsAbsent)
{
    EXPECT_EQ("<absent>", Find(kFile, "TradeConfig", "FirstRun"));
    EXPECT_EQ("<absent>", Find(kFile, "Trade", "iLockScreen"));
    EXPECT_EQ("<absent>", Find(kFile, "", "iLockScreen"));
    EXPECT_EQ("<absent>", Find(kFile, "TradeConfig", ""));
    EXPECT_EQ("<absent>", Find("", "TradeConfig", "iLockScreen"));
}

TEST(IniTextFind, TakesAnEmptyValueAsPresent)
{
    EXPECT_EQ("", Find("[s]\nk=\n", "s", "k"));
}

TEST(IniTextFind, TakesAKeyWithoutEqualsSignAsAbsent)
{
    EXPECT_EQ("<absent>", Find("[s]\nk\n", "s", "k"));
    // The first of two counts, as with the profile functions.
    EXPECT_EQ("<absent>", Find("[s]\nk\nk=2\n", "s", "k"));
}

TEST(IniTextFind, IgnoresTheCaseOfAsciiLetters)
{
    EXPECT_EQ("10", Find(kFile, "TRADECONFIG", "ilockscreen"));
    EXPECT_EQ("1", Find("[S]\nKeyZ_=1\n", "s", "kEYz_"));
    EXPECT_EQ("<absent>", Find("[s]\nk@=1\n", "s", "k`"));
    EXPECT_EQ("<absent>", Find("[s]\nk[=1\n", "s", "k{"));
}

TEST(IniTextFind, LeavesTrailBytesOutOfTheCaseComparison)
{
    // 0xC4 0x41 and 0xC4 0x61 are two characters.
    EXPECT_EQ("1", Find("[s]\n\xC4\x41=1\n\xC4\x61=2\n", "s", "\xC4\x41"));
    EXPECT_EQ("2", Find("[s]\n\xC4\x41=1\n\xC4\x61=2\n", "s", "\xC4\x61"));
    EXPECT_EQ("<absent>", Find("[\xC4\x41]\nk=1\n", "\xC4\x61", "k"));
    EXPECT_EQ("1", Find("[s]\n\xC4\x61K=1\n", "s", "\xC4\x61k"));
}

TEST(IniTextFind, TakesTrailBytesForNoMark)
{
    EXPECT_EQ("1", Find("[\xC4\x5D]\nk=1\n", "\xC4\x5D", "k"));
    EXPECT_EQ("1", Find("[\xC4\x5B\x81\x5D]\nk=1\n", "\xC4\x5B\x81\x5D", "k"));
    EXPECT_EQ("1", Find("[s]\n\x81\x3D=1\n", "s", "\x81\x3D"));
    EXPECT_EQ("1", Find("[s]\n\xC4\x5C=1\n", "s", "\xC4\x5C"));
    // The bracket here is a trail byte, so the head is not closed and `k` is still in `s`.
    EXPECT_EQ("1", Find("[s]\n[t\xC4\x5D\nk=1\n", "s", "k"));
}

TEST(IniTextFind, TakesTheFirstOfTwo)
{
    EXPECT_EQ("1", Find("[s]\nk=1\nK=2\n", "s", "k"));
    EXPECT_EQ("1", Find("[s]\nk=1\n[S]\nk=2\n", "s", "k"));
    EXPECT_EQ("<absent>", Find("[s]\na=1\n[t]\n[s]\nk=2\n", "s", "k"));
}

TEST(IniTextFind, IgnoresBlanksAroundNames)
{
    EXPECT_EQ("1", Find(" \t[ s\t] \nk=1\n", "s", "k"));
    EXPECT_EQ("1", Find("[s]\n \tk=1\n", "s", "k"));
    EXPECT_EQ("1", Find("[s] ; a comment\nk=1\n", "s", "k"));
}

TEST(IniTextFind, KeepsTheWholeValueOfAPlainLine)
{
    EXPECT_EQ(" 5 \t", Find("[s]\nk= 5 \t\n", "s", "k"));
    EXPECT_EQ("\" 5 \"", Find("[s]\nk=\" 5 \"\n", "s", "k"));
    EXPECT_EQ("a=b;c#d]", Find("[s]\nk=a=b;c#d]\n", "s", "k"));
}

TEST(IniTextFind, StripsTheValueOfALineLaidOutByHand)
{
    EXPECT_EQ("5 6", Find("[s]\nk = 5 6 \n", "s", "k"));
    EXPECT_EQ(" 5 ", Find("[s]\r\nk\t= \" 5 \"  \r\n", "s", "k"));
    EXPECT_EQ("5", Find("[s]\nk = '5'\n", "s", "k"));
    EXPECT_EQ("\"5'", Find("[s]\nk = \"5'\n", "s", "k"));
    EXPECT_EQ("\"", Find("[s]\nk = \"\n", "s", "k"));
    EXPECT_EQ("", Find("[s]\nk =\n", "s", "k"));
}

TEST(IniTextFind, ReadsBothLineEndsAndAMissingLastOne)
{
    EXPECT_EQ("1", Find("[s]\nj=1\r\nk=2", "s", "j"));
    EXPECT_EQ("2", Find("[s]\nj=1\r\nk=2", "s", "k"));
    EXPECT_EQ("1\r", Find("[s]\r\nk=1\r\r\n", "s", "k"));
}

TEST(IniTextFind, SkipsCommentsAndKeysOutsideOfSections)
{
    EXPECT_EQ("<absent>", Find("[s]\n;k=1\n", "s", ";k"));
    EXPECT_EQ("<absent>", Find("[s]\n #k=1\n", "s", "#k"));
    EXPECT_EQ("<absent>", Find("k=1\n", "", "k"));
    EXPECT_EQ("<absent>", Find("[]\nk=1\n", "s", "k"));
    EXPECT_EQ("2", Find("[s]\n=1\nk=2\n", "s", "k"));
}

TEST(IniTextFind, TakesAnUnclosedHeadForALine)
{
    EXPECT_EQ("3", Find("[s]\nj=1\n[t\nk=3\n", "s", "k"));
    EXPECT_EQ("<absent>", Find("[s]\nj=1\n[t\nk=3\n", "t", "k"));
}

TEST(IniTextFind, SkipsAByteOrderMark)
{
    EXPECT_EQ("1", Find("\xEF\xBB\xBF[s]\nk=1\n", "s", "k"));
    EXPECT_EQ("<absent>", Find("\xEF\xBB\xBF", "s", "k"));
}

TEST(IniTextFind, SurvivesGarbage)
{
    std::string every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    EXPECT_EQ("1", Find(every + "\n[s]\n" + every + "\nk=1\n" + every, "s", "k"));
    EXPECT_EQ(std::string("a\0b", 3), Find(std::string("[s]\nk=a\0b\n", 10), "s", "k"));
}

TEST(IniTextWith, ReplacesAValueInPlace)
{
    EXPECT_EQ("; head\r\n"
              "[TradeConfig]\r\n"
              "iLockScreen=120\r\n"
              "# note\r\n"
              "szPath=.\\a b.wav\r\n"
              "\r\n"
              "[Other]\r\n"
              "FirstRun=0\r\n",
              With(kFile, "tradeconfig", "ILOCKSCREEN", "120"));
    EXPECT_EQ("[s]\nk=\n", With("[s]\nk=1\n", "s", "k", ""));
    EXPECT_EQ("[s]\nk=2", With("[s]\nk=1", "s", "k", "2"));
    EXPECT_EQ("[s]\r\nk=2\nj=1\r\n", With("[s]\r\nk=1\nj=1\r\n", "s", "k", "2"));
}

TEST(IniTextWith, ReplacesTheFirstOfTwo)
{
    EXPECT_EQ("[s]\nk=3\nk=2\n", With("[s]\nk=1\nk=2\n", "s", "k", "3"));
    EXPECT_EQ("[s]\na=1\nk=3\n[s]\nk=2\n", With("[s]\na=1\n[s]\nk=2\n", "s", "k", "3"));
}

TEST(IniTextWith, LaysALineThatWasLaidOutByHandAnew)
{
    EXPECT_EQ("[s]\n  Key= \"x\" \n", With("[s]\n  Key  =  5 \n", "s", "key", " \"x\" "));
    EXPECT_EQ("[s]\nk=1\n", With("[s]\nk\n", "s", "k", "1"));
}

TEST(IniTextWith, PutsANewKeyAtTheEndOfItsSection)
{
    EXPECT_EQ("; head\r\n"
              "[TradeConfig]\r\n"
              "iLockScreen=10\r\n"
              "# note\r\n"
              "szPath=.\\a b.wav\r\n"
              "iLevel=1\r\n"
              "\r\n"
              "[Other]\r\n"
              "FirstRun=0\r\n",
              With(kFile, "TradeConfig", "iLevel", "1"));
    EXPECT_EQ("[s]\na=1\n; last\nk=1\n \t\n\n[t]\n",
              With("[s]\na=1\n; last\n \t\n\n[t]\n", "s", "k", "1"));
    EXPECT_EQ("[s]\nk=1\n[t]\n", With("[s]\n[t]\n", "s", "k", "1"));
    EXPECT_EQ("[s]\r\nk=1\r\n", With("[s]", "s", "k", "1"));
    EXPECT_EQ("[s]\na=1\nk=1\n", With("[s]\na=1", "s", "k", "1"));
    EXPECT_EQ("[s]\na=1\nk=1\n\n", With("[s]\na=1\n\n", "s", "k", "1"));
}

TEST(IniTextWith, PutsANewSectionAtTheEndOfTheText)
{
    EXPECT_EQ("[s]\r\nk=1\r\n", With("", "s", "k", "1"));
    EXPECT_EQ("[s]\na=1\n[t]\nk=1\n", With("[s]\na=1\n", "t", "k", "1"));
    EXPECT_EQ("[s]\na=1\n[t]\nk=1\n", With("[s]\na=1", "t", "k", "1"));
    EXPECT_EQ("a=1\r\n[t]\r\nk=1\r\n", With("a=1", "t", "k", "1"));
    EXPECT_EQ("[t\r\nx=1\r\n[t]\r\nk=1\r\n", With("[t\r\nx=1\r\n", "t", "k", "1"));
    EXPECT_EQ("\xEF\xBB\xBF[t]\r\nk=1\r\n", With("\xEF\xBB\xBF", "t", "k", "1"));
    EXPECT_EQ("\n[t]\nk=1\n", With("\n", "t", "k", "1"));
}

TEST(IniTextWith, LeavesALoneCarriageReturnInItsValue)
{
    EXPECT_EQ("1\r", Find("[s]\na=1\r", "s", "a"));
    const std::string text = With("[s]\na=1\r", "s", "k", "2");
    EXPECT_EQ("[s]\na=1\r\r\nk=2\n", text);
    EXPECT_EQ("1\r", Find(text, "s", "a"));
    EXPECT_EQ("2", Find(text, "s", "k"));
}

TEST(IniTextWith, StandsInTheOrderOfWriting)
{
    IniText text;
    text = IniText(text.With("s", "b", "1"));
    text = IniText(text.With("s", "a", "2"));
    text = IniText(text.With("t", "c", "3"));
    text = IniText(text.With("s", "0", "4"));
    EXPECT_EQ("[s]\r\nb=1\r\na=2\r\n0=4\r\n[t]\r\nc=3\r\n", text.Text());
}

TEST(IniTextWith, EveryValueComesBack)
{
    const std::string values[] = {"",          " ",
                                  "  a\t",     "\"a\"",
                                  "'a'",       "\" a \"",
                                  "\"",        "''",
                                  "=",         "==a",
                                  "a;b",       ";",
                                  "#",         "[s]",
                                  "]",         "\xC4\x5C",
                                  "\x81\x3D",  "\xC4\x5B",
                                  "\xC4\x5D",  "a\xC4",
                                  "\x80\xFF",  std::string(65536, 'x'),
                                  "价格;笼=子"};
    const std::string texts[] = {"", "[s]\nk=old\nj=1\n", "[s]\r\nk = old\r\nj=1\r\n", "[s]\nj=1",
                                 kFile};
    for (const std::string& value : values)
    {
        for (const std::string& text : texts)
        {
            ASSERT_TRUE(IniText::CanHold("s", "k", value));
            const std::string changed = With(text, "s", "k", value);
            EXPECT_EQ(value, Find(changed, "s", "k")) << text;
            EXPECT_EQ(Find(text, "s", "j"), Find(changed, "s", "j"));
            EXPECT_EQ(changed, With(changed, "s", "k", value));
        }
    }
}

TEST(IniTextCanHold, RefusesLineBreaksAndNuls)
{
    const std::string nul("a\0b", 3);
    for (const std::string& text :
         {std::string("a\rb"), std::string("a\nb"), std::string("\r\n"), nul})
    {
        EXPECT_FALSE(IniText::CanHold(text, "k", "v"));
        EXPECT_FALSE(IniText::CanHold("s", text, "v"));
        EXPECT_FALSE(IniText::CanHold("s", "k", text));
    }
}

TEST(IniTextCanHold, RefusesNamesThatWouldReadAsSomethingElse)
{
    for (const char* key :
         {"", " ", " k", "k ", "\tk", "a=b", "=", "[k", ";k", "#k", "k\x81", "\xFE"})
        EXPECT_FALSE(IniText::CanHold("s", key, "v")) << key;
    for (const char* section : {"", " ", " s", "s ", "s\t", "s\x81"})
        EXPECT_FALSE(IniText::CanHold(section, "k", "v")) << section;
}

TEST(IniTextCanHold, TakesNamesThatComeBack)
{
    for (const char* name : {"k", "a b", "a;b", "a#", "a[b", "k]", "个股期权", "\xC4\x5D",
                             "\x81\x3D", "\xC4\x5C", "\"k\"", "a\\b"})
    {
        ASSERT_TRUE(IniText::CanHold(name, name, "v")) << name;
        EXPECT_EQ("v", Find(With("", name, name, "v"), name, name)) << name;
    }
    ASSERT_TRUE(IniText::CanHold("a=b", "k", "v"));
    EXPECT_EQ("v", Find(With("", "a=b", "k", "v"), "a=b", "k"));
}

TEST(IniInteger, ReadsTheNumberAtTheFront)
{
    EXPECT_EQ(12, IniInteger("12", 7));
    EXPECT_EQ(-5, IniInteger(" \t-5x", 7));
    EXPECT_EQ(5, IniInteger("+5", 7));
    EXPECT_EQ(3, IniInteger("3.9", 7));
    EXPECT_EQ(10, IniInteger("010", 7));
    EXPECT_EQ(0, IniInteger("0x10", 7));
    EXPECT_EQ(12, IniInteger("\"12\"", 7));
}

TEST(IniInteger, TakesAnEmptyValueForAbsentAndATextForZero)
{
    EXPECT_EQ(7, IniInteger("", 7));
    EXPECT_EQ(7, IniInteger("  ", 7));
    EXPECT_EQ(0, IniInteger("abc", 7));
    EXPECT_EQ(0, IniInteger("-", 7));
    EXPECT_EQ(0, IniInteger("--5", 7));
    EXPECT_EQ(0, IniInteger("- 5", 7));
}

TEST(IniInteger, WrapsAround)
{
    EXPECT_EQ(2147483647, IniInteger("2147483647", 7));
    EXPECT_EQ(-2147483647 - 1, IniInteger("-2147483648", 7));
    EXPECT_EQ(-1, IniInteger("4294967295", 7));
    EXPECT_EQ(1215752191, IniInteger("99999999999", 7));
    EXPECT_EQ(-1, IniInteger(std::string(64, ' ') + "18446744073709551615", 7));
}

TEST(IniFloat, ReadsTheNumberAtTheFront)
{
    EXPECT_DOUBLE_EQ(5.0, IniFloat("5.00", 7));
    EXPECT_DOUBLE_EQ(-0.3, IniFloat(" -0.3s", 7));
    EXPECT_DOUBLE_EQ(0.5, IniFloat("+.5", 7));
    EXPECT_DOUBLE_EQ(1500, IniFloat("1.5e3", 7));
    EXPECT_DOUBLE_EQ(5, IniFloat("5,7", 7));
    EXPECT_DOUBLE_EQ(8, IniFloat("\"8.00\"", 7));
}

TEST(IniFloat, GivesTheDefaultForNoNumber)
{
    for (const char* text : {"", " ", "abc", "-", ".", "+-5", "--5", "inf", "-nan", "1e999"})
        EXPECT_DOUBLE_EQ(7, IniFloat(text, 7)) << text;
}

TEST(IniFloat, DoesNotFollowTheLocale)
{
    const char* const names[] = {"de_DE.UTF-8", "fr_FR.UTF-8", "German_Germany.1252"};
    for (const char* name : names)
        if (std::setlocale(LC_NUMERIC, name))
            break;
    EXPECT_DOUBLE_EQ(2.5, IniFloat("2.5", 7));
    EXPECT_DOUBLE_EQ(2, IniFloat("2,5", 7));
    std::setlocale(LC_NUMERIC, "C");
}
