// The texts of the condition-order mode as a deployment replaces them. A text read once stays for the
// life of the process, so that these tests have a program of their own.
#include "resources/resource.h"
#include "tests/window/ConditionModeClient.h"

namespace
{

class ReplacedTexts : public ConditionModeTest
{
protected:
    static void Replace(const std::string& key, const std::string& text)
    {
        WriteBytes(kResourceFile, "[Zorvane]\r\n" + key + "=" + text + "\r\n");
    }

    std::string RefusalShown()
    {
        std::string text;
        cloudOrdersRun = true;
        Run(1,
            [&](Trader& trader)
            {
                trader.Click(IDC_LOCAL_MODE);
                text = LeavePopup(trader, IDOK);
                trader.Click(IDCANCEL);
            });
        return text;
    }

    std::string PromptShown(uint32_t mode, int other)
    {
        std::string text;
        Run(mode,
            [&](Trader& trader)
            {
                trader.Click(other);
                trader.Click(IDOK);
                text = LeavePopup(trader, IDCANCEL);
                trader.Click(IDCANCEL);
            });
        return text;
    }
};

} // namespace

TEST_F(ReplacedTexts, TheRefusalAndOnceReadItStays)
{
    Replace("切换条件单模式时检查提示", "云端还有条件单。\\n\\n请先暂停。");
    EXPECT_EQ("云端还有条件单。\n\n请先暂停。", RefusalShown());
    Replace("切换条件单模式时检查提示", "另一句");
    EXPECT_EQ("云端还有条件单。\n\n请先暂停。", RefusalShown());
}

TEST_F(ReplacedTexts, ThePromptToCloud)
{
    Replace("启用云条件单提示", "改用云端？\\n重启后生效 & 不可撤销");
    EXPECT_EQ("改用云端？\n重启后生效 & 不可撤销", PromptShown(0, IDC_CLOUD_MODE));
}

TEST_F(ReplacedTexts, ThePromptToLocalGrowsWithItsText)
{
    std::string longText;
    for (int line = 0; line < 12; ++line)
        longText += "第" + std::to_string(line) + "行：改用本地条件单\\n";
    Replace("启用本地条件单提示", longText + "完");

    RECT label = {}, button = {}, client = {};
    Run(1,
        [&](Trader& trader)
        {
            trader.Click(IDC_LOCAL_MODE);
            trader.Click(IDOK);
            const HWND prompt = WaitForPopup(trader.Window());
            ASSERT_TRUE(prompt);
            GetWindowRect(GetDlgItem(prompt, IDC_PROMPT_TEXT), &label);
            GetWindowRect(GetDlgItem(prompt, IDOK), &button);
            GetWindowRect(prompt, &client);
            EXPECT_NE(std::string::npos,
                      LeavePopup(trader, IDCANCEL).find("第11行：改用本地条件单\n完"));
            trader.Click(IDCANCEL);
        });
    // Thirteen lines of at least 16 pixels, the button below them, all inside of the window.
    EXPECT_GE(label.bottom - label.top, 13 * 16);
    EXPECT_GT(button.top, label.bottom);
    EXPECT_LT(button.bottom, client.bottom);
}
