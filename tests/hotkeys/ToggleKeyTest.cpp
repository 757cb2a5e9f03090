#include "hotkeys/ToggleKey.h"

#include <gtest/gtest.h>

TEST(ToggleKey, OneModifierAndAKey)
{
    EXPECT_EQ("Ctrl + X", ToggleKeyText("[Ctrl]+[88]"));
    EXPECT_EQ("Alt + A", ToggleKeyText("[Alt]+[65]"));
    EXPECT_EQ("Shift + 1", ToggleKeyText("[Shift]+[49]"));
    EXPECT_EQ("Z", ToggleKeyText("[90]"));
}

TEST(ToggleKey, ModifiersAreReadInAnyCaseAndShownAsTheyStand)
{
    EXPECT_EQ("CTRL + X", ToggleKeyText("[CTRL]+[88]"));
    EXPECT_EQ("shift + X", ToggleKeyText("[shift][88]"));
}

TEST(ToggleKey, ASecondModifierTakesThePlaceOfTheFirst)
{
    EXPECT_EQ("Alt + ", ToggleKeyText("[Ctrl]+[Alt]+[88]"));
    EXPECT_EQ("Ctrl + ", ToggleKeyText("[Alt]+[Ctrl]+[88]"));
    EXPECT_EQ("Ctrl + ", ToggleKeyText("[Ctrl]+[Ctrl]+[88]"));
    EXPECT_EQ("Shift + ", ToggleKeyText("[Ctrl]+[Alt]+[Shift]+[88]"));
}

TEST(ToggleKey, AModifierBehindTheKeyTakesItsPlace)
{
    EXPECT_EQ("Ctrl + ", ToggleKeyText("[88]+[Ctrl]"));
}

TEST(ToggleKey, ALaterKeyTakesThePlaceOfAnEarlierOne)
{
    EXPECT_EQ("Ctrl + B", ToggleKeyText("[Ctrl]+[65]+[66]"));
}

TEST(ToggleKey, AFunctionKeyIsTheCharacterOfItsCode)
{
    EXPECT_EQ("Ctrl + p", ToggleKeyText("[Ctrl]+[112]"));
}

TEST(ToggleKey, CodesAreCutToAByte)
{
    EXPECT_EQ("A", ToggleKeyText("[321]"));
    EXPECT_EQ("\xDC", ToggleKeyText("[220]"));
    EXPECT_EQ("\xFF", ToggleKeyText("[-1]"));
    EXPECT_EQ("", ToggleKeyText("[256]"));
}

TEST(ToggleKey, ShortTokensAreDropped)
{
    EXPECT_EQ("Ctrl + ", ToggleKeyText("[Ctrl]+[8]"));
    EXPECT_EQ("X", ToggleKeyText("[]+[88]"));
}

TEST(ToggleKey, TokensAreCutAt24Bytes)
{
    EXPECT_EQ("A", ToggleKeyText("[0000000000000000000000659]")) << "the 25th byte is left out";
    EXPECT_EQ("", ToggleKeyText("[Ctrl                     ]")) << "not the name of a modifier";
}

TEST(ToggleKey, WhatIsNoNumberEndsTheText)
{
    EXPECT_EQ("", ToggleKeyText("[Control]+[88]").substr(1));
    EXPECT_EQ("Ctrl + ", ToggleKeyText("[Ctrl]+[F1]"));
}

TEST(ToggleKey, StrayBrackets)
{
    EXPECT_EQ("", ToggleKeyText(""));
    EXPECT_EQ("", ToggleKeyText("Ctrl+X"));
    EXPECT_EQ("", ToggleKeyText("]]]"));
    EXPECT_EQ("", ToggleKeyText("[[["));
    EXPECT_EQ("Ctrl + X", ToggleKeyText("][Ctrl][[88]"));
    EXPECT_EQ("X", ToggleKeyText("[88]9]")) << "the token begins at the last opening bracket";
}

TEST(ToggleKey, ManyModifiersStayInBounds)
{
    std::string setting;
    for (int i = 0; i < 200; ++i)
        setting += "[Shift]";
    EXPECT_EQ("Shift + ", ToggleKeyText(setting + "[88]"));
}
