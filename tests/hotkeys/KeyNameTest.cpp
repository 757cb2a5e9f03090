#include "hotkeys/KeyName.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace
{
std::string KeyName(unsigned int modifiers, unsigned int vk)
{
    char name[kKeyNameSize] = {};
    MakeKeyName(modifiers, vk, name);
    return {name, strnlen(name, sizeof(name))};
}

std::map<unsigned int, std::string> AllNames()
{
    std::map<unsigned int, std::string> names = {
        {13, "回车"},      {33, "Page Up"},   {34, "Page Down"}, {35, "End"},
        {36, "Home"},      {37, "向左键"},    {38, "向上键"},    {39, "向右键"},
        {40, "向下键"},    {45, "Insert"},    {46, "Del"},       {106, "小键盘 *"},
        {107, "小键盘 +"}, {109, "小键盘 -"}, {110, "小键盘 ."}, {111, "小键盘 /"},
        {144, "Num Lock"}, {186, ";"},        {187, "="},        {188, ","},
        {189, "-"},        {190, "."},        {191, "/"},        {219, "["},
        {221, "]"},        {222, "'"},        {230, "\\"},
    };
    for (unsigned int i = 1; i <= 12; ++i)
        names[111 + i] = "F" + std::to_string(i);
    for (unsigned int letter = 'A'; letter <= 'Z'; ++letter)
        names[letter] = std::string(1, static_cast<char>(letter));
    for (unsigned int digit = 0; digit <= 9; ++digit)
    {
        names[48 + digit] = std::to_string(digit);
        names[96 + digit] = std::string("小键盘 ") + std::to_string(digit);
    }
    return names;
}
} // namespace

TEST(KeyName, EveryCode)
{
    std::map<unsigned int, std::string> names = AllNames();
    for (unsigned int vk = 0; vk < 256; ++vk)
        EXPECT_EQ(names[vk], KeyName(0, vk)) << vk;
}

TEST(KeyName, CodesWithoutAName)
{
    for (unsigned int vk : {0u, 16u, 17u, 18u, 108u, 192u, 220u, 255u, 256u, 0x141u, ~0u})
        EXPECT_EQ("", KeyName(7, vk)) << vk;
}

TEST(KeyName, PrefixesInTheirOrder)
{
    EXPECT_EQ("Ctrl + A", KeyName(1, 'A'));
    EXPECT_EQ("Alt + A", KeyName(2, 'A'));
    EXPECT_EQ("Ctrl + Alt + A", KeyName(3, 'A'));
    EXPECT_EQ("Shift + A", KeyName(4, 'A'));
    EXPECT_EQ("Ctrl + Shift + A", KeyName(5, 'A'));
    EXPECT_EQ("Alt + Shift + A", KeyName(6, 'A'));
    EXPECT_EQ("Ctrl + Alt + Shift + A", KeyName(7, 'A'));
    EXPECT_EQ("Ctrl + Alt + Shift + A", KeyName(0xFF, 'A')) << "other bits say nothing";
}

TEST(KeyName, LongestNameFits)
{
    EXPECT_EQ("Ctrl + Alt + Shift + Page Down", KeyName(7, 34));
    size_t longest = 0;
    for (unsigned int vk = 0; vk < 256; ++vk)
        longest = std::max(longest, KeyName(7, vk).size());
    EXPECT_EQ(30u, longest);
}

TEST(KeyName, WritesExactly32Bytes)
{
    char out[40];
    memset(out, 'x', sizeof(out));
    MakeKeyName(1, 'A', out);
    EXPECT_EQ(0,
              memcmp(out, "Ctrl + A\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0xxxxxxxx", 40));
}

TEST(KeyName, NamelessKeyClearsTheFirstByteOnly)
{
    char out[40];
    memset(out, 'x', sizeof(out));
    MakeKeyName(1, 220, out);
    EXPECT_EQ(
        0, memcmp(out, "\0trl + \0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0xxxxxxxx", 40));
}
