#include "skin/NumEdit.h"

#include "tests/skin/KitWindow.h"

TEST(NumEdit, TakesDigitsPointAndBackspaceOnly)
{
    KitWindow parent;
    CNumEdit edit;
    ASSERT_TRUE(
        edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(20, 20, 140, 50), &parent, 8));
    for (const char key : std::string("-1a2.5 ,e+\x16\x03"))
        edit.SendMessage(WM_CHAR, static_cast<unsigned char>(key), 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ("12.5", text);

    edit.SendMessage(WM_CHAR, 8, 1);
    edit.GetWindowText(text);
    EXPECT_STREQ("12.", text);
}

TEST(NumEdit, TextThatIsSetIsNotFiltered)
{
    KitWindow parent;
    CNumEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(20, 20, 140, 50), &parent, 8));
    edit.SetWindowText("-abc");
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ("-abc", text);
}
