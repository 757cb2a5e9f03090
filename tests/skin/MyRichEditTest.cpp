#include "skin/MyRichEdit.h"

#include "skin/Palette.h"
#include "skin/SkinCache.h"
#include "tests/core/TempWorkingFolder.h"
#include "tests/skin/ImportPatch.h"
#include "tests/skin/KitWindow.h"
#include "tests/skin/LeftBehind.h"
#include "tests/skin/TestBitmap.h"

#include <memory>

namespace
{

constexpr COLORREF kUp = RGB(200, 0, 0);
constexpr COLORREF kUpPressed = RGB(0, 200, 0);
constexpr COLORREF kDown = RGB(0, 0, 200);
constexpr COLORREF kDownPressed = RGB(200, 200, 0);

constexpr int kWidth = 120;
constexpr int kHeight = 30;
constexpr int kInColumn = kWidth - 12;
constexpr int kInUp = 7;
constexpr int kInDown = 22;

/// A rich edit as a dialog template makes it, with a drawn control attached.
class Field
{
public:
    explicit Field(KitWindow& parent, int top = 20, DWORD style = WS_BORDER)
    {
        const HWND window = CreateWindowExA(
            0, "RichEdit20A", "", style | WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, 20,
            top, kWidth, kHeight, parent, reinterpret_cast<HMENU>(7), nullptr, nullptr);
        EXPECT_NE(nullptr, window);
        EXPECT_TRUE(edit.SubclassWindow(window));
    }

    std::string Text() const
    {
        char text[512];
        GetWindowTextA(edit, text, sizeof(text));
        return text;
    }

    void Put(const char* text) { SetWindowTextA(edit, text); }

    COLORREF UpColor() const { return PixelOf(edit, kInColumn, kInUp); }
    COLORREF DownColor() const { return PixelOf(edit, kInColumn, kInDown); }

    void ClickUp() { ClickAt(edit, kInColumn, kInUp); }
    void ClickDown() { ClickAt(edit, kInColumn, kInDown); }

    void Type(const char* keys)
    {
        for (; *keys; ++keys)
            edit.SendMessage(WM_CHAR, static_cast<unsigned char>(*keys), 1);
    }

    CMyRichEdit_MyCtrl edit;
};

class MyRichEdit : public TempWorkingFolder
{
protected:
    void SetUp() override
    {
        TempWorkingFolder::SetUp();
        std::filesystem::create_directories("skin/ctrl");
        WriteBytes("skin/ctrl/Spin.bmp",
                   FlatBitmap(2, 12, 8, {kUp, kUpPressed, kDown, kDownPressed}));
        parent = std::make_unique<KitWindow>();
    }

    void TearDown() override
    {
        parent.reset();
        TempWorkingFolder::TearDown();
    }

    std::unique_ptr<KitWindow> parent;
};

CRect ClientOf(const CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    return client;
}

/// Leftmost and topmost, rightmost and bottommost pixels of a colour in a window; empty without any.
CRect Extent(HWND window, int width, int height, COLORREF color)
{
    CRect extent(width, height, 0, 0);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (PixelOf(window, x, y) == color)
                extent =
                    CRect(std::min<int>(extent.left, x), std::min<int>(extent.top, y),
                          std::max<int>(extent.right, x + 1), std::max<int>(extent.bottom, y + 1));
    return extent;
}

} // namespace

// ---- The wheel

namespace
{

/// A page that scrolls by the wheel.
class WheelWindow : public KitWindow
{
public:
    std::vector<short> deltas;

protected:
    afx_msg BOOL OnMouseWheel(UINT, short delta, CPoint)
    {
        deltas.push_back(delta);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WheelWindow, KitWindow)
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

} // namespace

TEST_F(MyRichEdit, TheWheelBelongsToThePage)
{
    WheelWindow page;
    Field field(page);
    field.edit.EnableSpin();
    field.Put("12");
    field.edit.SetFocus();
    const CRect client = ClientOf(field.edit);
    field.edit.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
    field.edit.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
    EXPECT_EQ((std::vector<short>{-WHEEL_DELTA, WHEEL_DELTA}), page.deltas);
    EXPECT_EQ(client, ClientOf(field.edit)) << "no scroll bar of its own";
    EXPECT_EQ("12", field.Text());
}

// ---- The column and the frame

TEST_F(MyRichEdit, WithoutASpinNoColumnIsReserved)
{
    Field field(*parent);
    EXPECT_EQ(CRect(0, 0, kWidth - 2, kHeight - 2), ClientOf(field.edit));
}

TEST_F(MyRichEdit, ASpinTakesAColumnAndTheStockFrameIsGivenBack)
{
    Field field(*parent);
    field.edit.EnableSpin();
    EXPECT_EQ(CRect(0, 0, kWidth - 25, kHeight), ClientOf(field.edit));
    CPoint origin(0, 0);
    field.edit.ClientToScreen(&origin);
    CRect window;
    field.edit.GetWindowRect(&window);
    EXPECT_EQ(window.TopLeft(), origin);
    EXPECT_EQ(CSize(kWidth, kHeight), window.Size());
}

TEST_F(MyRichEdit, TheFrameIsDrawnWithAndWithoutASpin)
{
    Field plain(*parent);
    Field spin(*parent, 60);
    spin.edit.EnableSpin();
    PumpFor(20);
    for (Field* field : {&plain, &spin})
    {
        field->edit.SendMessage(WM_NCPAINT, 1);
        EXPECT_COLOR(kFieldBack, PixelOf(field->edit, 0, 0));
        EXPECT_COLOR(kFieldBack, PixelOf(field->edit, kWidth / 2, 0));
        EXPECT_COLOR(kFieldBack, PixelOf(field->edit, 0, kHeight / 2));
        EXPECT_COLOR(kFieldBack, PixelOf(field->edit, kWidth - 1, kHeight / 2));
        EXPECT_COLOR(kFieldBack, PixelOf(field->edit, kWidth / 2, kHeight - 1));
    }
}

TEST_F(MyRichEdit, TheArrowsFillTheColumn)
{
    Field field(*parent);
    field.edit.EnableSpin();
    Paint(field.edit);
    EXPECT_EQ(CRect(kWidth - 25, 1, kWidth - 1, kHeight / 2),
              Extent(field.edit, kWidth, kHeight, kUp));
    EXPECT_EQ(CRect(kWidth - 25, kHeight / 2, kWidth - 1, kHeight - 1),
              Extent(field.edit, kWidth, kHeight, kDown));
}

TEST_F(MyRichEdit, StretchingMixesNoNeighbouringCellIn)
{
    for (const int cellSize : {3, 12, 25, 100})
    {
        WriteBytes("own.bmp",
                   FlatBitmap(2, cellSize, cellSize - 1, {kUp, kUpPressed, kDown, kDownPressed}));
        const auto bitmap = static_cast<HBITMAP>(LoadImageA(nullptr, "own.bmp", IMAGE_BITMAP, 0, 0,
                                                            LR_LOADFROMFILE | LR_CREATEDIBSECTION));
        Field field(*parent);
        field.edit.SetSpinBitmap(bitmap);
        field.edit.EnableSpin();
        field.edit.SpinClick(CPoint(kInColumn, kInDown));
        Paint(field.edit);
        for (int y = 1; y < kHeight - 1; ++y)
            for (int x = kWidth - 25; x < kWidth - 1; ++x)
                ASSERT_PRED_FORMAT2(IsColor, y < kHeight / 2 ? kUp : kDownPressed,
                                    PixelOf(field.edit, x, y))
                    << cellSize << ": " << x << ", " << y;
        field.edit.SetSpinBitmap(nullptr);
        DeleteObject(bitmap);
    }
}

TEST_F(MyRichEdit, AFieldWithoutABorderHasItsArrowsAtTheRightEdgeToo)
{
    Field field(*parent, 20, 0);
    field.edit.EnableSpin();
    Paint(field.edit);
    // The client area begins a pixel above the window, and the middle is counted from there.
    EXPECT_EQ(CRect(kWidth - 24, 1, kWidth - 1, kHeight / 2 - 1),
              Extent(field.edit, kWidth, kHeight, kUp));
}

TEST_F(MyRichEdit, AFieldNarrowerThanItsColumnDoesNoHarm)
{
    Field field(*parent);
    field.edit.MoveWindow(20, 20, 10, 3);
    field.edit.EnableSpin();
    Paint(field.edit);
    field.edit.MoveWindow(20, 20, 0, 0);
    Paint(field.edit);
    field.edit.MoveWindow(20, 20, kWidth, kHeight);
    Paint(field.edit);
    EXPECT_COLOR(kUp, field.UpColor());
}

TEST_F(MyRichEdit, ABitmapOfItsOwnReplacesTheSkins)
{
    constexpr COLORREF kOwn = RGB(1, 2, 3);
    WriteBytes("own.bmp", FlatBitmap(2, 5, 5, {kOwn, kOwn, kOwn, kOwn}));
    Field field(*parent);
    field.edit.EnableSpin();
    const auto own = static_cast<HBITMAP>(
        LoadImageA(nullptr, "own.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    field.edit.SetSpinBitmap(own);
    Paint(field.edit);
    EXPECT_COLOR(kOwn, field.UpColor());
    EXPECT_COLOR(kOwn, field.DownColor());

    field.edit.SetSpinBitmap(nullptr);
    Paint(field.edit);
    EXPECT_COLOR(kFieldBack, field.UpColor());
    EXPECT_COLOR(kFieldBack, field.DownColor());
    DeleteObject(own);
}

// ---- The spin button

TEST_F(MyRichEdit, APressOfTheMouseStepsTheText)
{
    Field field(*parent);
    field.edit.SetSpinRange(0.01, 2, 0.01, 9999999.0);
    field.edit.EnableSpin();
    field.Put("1.2");
    field.ClickUp();
    EXPECT_EQ("1.21", field.Text());
    field.ClickDown();
    EXPECT_EQ("1.20", field.Text());
}

TEST_F(MyRichEdit, AFreshFieldStepsWholeNumbersFromZeroOn)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.ClickDown();
    EXPECT_EQ("0", field.Text());
    field.ClickUp();
    EXPECT_EQ("1", field.Text());
}

TEST_F(MyRichEdit, AValueAboveTheRangeIsSteppedAndThenClamped)
{
    Field field(*parent);
    field.edit.SetSpinRange(1.0, 0, 1.0, 100.0);
    field.edit.EnableSpin();
    field.Put("500");
    field.ClickDown();
    EXPECT_EQ("100", field.Text());
}

TEST_F(MyRichEdit, OnlyTheFirstBytesOfALongTextAreRead)
{
    Field field(*parent);
    field.edit.SetSpinRange(1.0, 0, 0.0, 9999999.0);
    field.edit.EnableSpin();
    // The 1 stands behind what is read.
    field.Put((std::string(127, ' ') + "1").c_str());
    field.ClickUp();
    EXPECT_EQ("1", field.Text());
    field.Put(std::string(400, '9').c_str());
    field.ClickDown();
    EXPECT_EQ("9999999", field.Text());
}

TEST_F(MyRichEdit, TheArrowUnderTheMouseLooksPressedUntilTheButtonComesUp)
{
    Field field(*parent);
    field.edit.EnableSpin();
    Paint(field.edit);
    EXPECT_COLOR(kUp, field.UpColor());
    EXPECT_COLOR(kDown, field.DownColor());

    MoveMouseTo(field.edit, kInColumn, kInUp);
    PressMouse();
    EXPECT_COLOR(kUpPressed, field.UpColor());
    EXPECT_COLOR(kDown, field.DownColor());
    ReleaseMouse();
    EXPECT_COLOR(kUp, field.UpColor());

    PumpFor(GetDoubleClickTime());
    MoveMouseTo(field.edit, kInColumn, kInDown);
    PressMouse();
    EXPECT_COLOR(kUp, field.UpColor());
    EXPECT_COLOR(kDownPressed, field.DownColor());
    ReleaseMouse();
    EXPECT_COLOR(kDown, field.DownColor());
}

TEST_F(MyRichEdit, ThePressedLookStaysWhenTheButtonComesUpElsewhere)
{
    Field field(*parent);
    field.edit.EnableSpin();
    Paint(field.edit);
    MoveMouseTo(field.edit, kInColumn, kInUp);
    PressMouse();
    MoveMouseTo(*parent, 400, 300);
    ReleaseMouse();
    EXPECT_COLOR(kUpPressed, field.UpColor());
    field.ClickDown();
    EXPECT_COLOR(kUp, field.UpColor());
    EXPECT_COLOR(kDown, field.DownColor());
}

TEST_F(MyRichEdit, OnePressIsOneStepHoweverLong)
{
    Field field(*parent);
    field.edit.EnableSpin();
    MoveMouseTo(field.edit, kInColumn, kInUp);
    PressMouse();
    PumpFor(700);
    EXPECT_EQ("1", field.Text());
    ReleaseMouse();
    EXPECT_EQ("1", field.Text());
}

TEST_F(MyRichEdit, TheArrowKeysStepAFieldWithASpin)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.edit.SetSpinRange(0.5, 1, 0, 2);
    field.Put("1");
    const auto press = [&](UINT key)
    {
        field.edit.SendMessage(WM_KEYDOWN, key, 1);
        return field.Text();
    };
    EXPECT_EQ("1.5", press(VK_UP));
    EXPECT_EQ("2.0", press(VK_UP));
    EXPECT_EQ("2.0", press(VK_UP));
    EXPECT_EQ("1.5", press(VK_DOWN));
    EXPECT_EQ("1.5", press(VK_LEFT));
    // No arrow of the button looks pressed.
    Paint(field.edit);
    EXPECT_COLOR(kUp, field.UpColor());
    EXPECT_COLOR(kDown, field.DownColor());
}

TEST_F(MyRichEdit, TheArrowKeysLeaveAFieldWithoutASpinAlone)
{
    Field field(*parent);
    field.Put("1");
    field.edit.SendMessage(WM_KEYDOWN, VK_UP, 1);
    field.edit.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ("1", field.Text());
}

TEST_F(MyRichEdit, APressInTheTextStepsNothing)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.Put("5");
    ClickAt(field.edit, 10, 10);
    EXPECT_EQ("5", field.Text());
    field.edit.SpinClick(CPoint(kWidth - 26, 10));
    EXPECT_EQ("5", field.Text());
    field.edit.SpinClick(CPoint(kWidth - 25, 10));
    EXPECT_EQ("6", field.Text());
}

TEST_F(MyRichEdit, TheMiddleOfTheColumnStepsDown)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.Put("5");
    field.edit.SpinClick(CPoint(kInColumn, kHeight / 2 - 1));
    EXPECT_EQ("6", field.Text());
    field.edit.SpinClick(CPoint(kInColumn, kHeight / 2));
    EXPECT_EQ("5", field.Text());
}

TEST_F(MyRichEdit, OnlyTheFieldUnderTheMouseSteps)
{
    Field first(*parent);
    Field second(*parent, 60);
    first.edit.EnableSpin();
    second.edit.EnableSpin();
    second.ClickUp();
    EXPECT_EQ("", first.Text());
    EXPECT_EQ("1", second.Text());
}

TEST_F(MyRichEdit, AFieldWithoutASpinIgnoresTheMouse)
{
    Field plain(*parent);
    Field spin(*parent, 60);
    spin.edit.EnableSpin();
    plain.Put("5");
    ClickAt(plain.edit, kWidth - 1, kInUp);
    EXPECT_EQ("5", plain.Text());
}

TEST_F(MyRichEdit, AHiddenOrCoveredFieldDoesNotStep)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.Put("5");
    field.edit.ShowWindow(SW_HIDE);
    field.ClickUp();
    EXPECT_EQ("5", field.Text());

    field.edit.ShowWindow(SW_SHOW);
    KitWindow cover;
    field.ClickUp();
    EXPECT_EQ("5", field.Text());
}

TEST_F(MyRichEdit, ADisabledFieldDoesNotStep)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.Put("5");
    field.edit.EnableWindow(FALSE);
    field.ClickUp();
    EXPECT_EQ("5", field.Text());
    Paint(field.edit);
    EXPECT_COLOR(kUp, field.UpColor());
    field.edit.EnableWindow(TRUE);
    field.ClickUp();
    EXPECT_EQ("6", field.Text());
}

TEST_F(MyRichEdit, AFieldThatIsDisabledByItsOwnStepLooksReleased)
{
    Field field(*parent);
    field.edit.EnableSpin();
    Paint(field.edit);
    parent->onNotice = [&](UINT code)
    {
        if (code == EN_CHANGE)
            field.edit.EnableWindow(FALSE);
    };
    MoveMouseTo(field.edit, kInColumn, kInUp);
    PressMouse();
    EXPECT_EQ("1", field.Text());
    EXPECT_COLOR(kUp, field.UpColor());
    ReleaseMouse();
    parent->onNotice = nullptr;
}

// ---- What the parent hears

TEST_F(MyRichEdit, ChangesOfTheTextAreToldToTheParent)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.Put("5");
    EXPECT_EQ(1, parent->Count(EN_CHANGE));
    field.edit.SpinClick(CPoint(kInColumn, kInUp));
    EXPECT_EQ(2, parent->Count(EN_CHANGE));
    field.Type("7");
    EXPECT_EQ(3, parent->Count(EN_CHANGE));
}

TEST_F(MyRichEdit, AFieldMadeByCreateTellsItsChangesToo)
{
    CMyRichEdit_MyCtrl edit;
    ASSERT_TRUE(
        edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(20, 20, 140, 50), parent.get(), 9));
    edit.SetWindowText("5");
    EXPECT_EQ(1, parent->Count(EN_CHANGE));
}

// ---- The hook

namespace
{

int hooksSet;
int hooksTaken;
HHOOK lastHook;
decltype(&SetWindowsHookExA) realSet;
decltype(&UnhookWindowsHookEx) realTake;

HHOOK WINAPI CountSet(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread)
{
    const HHOOK hook = realSet(kind, procedure, module, thread);
    if (kind == WH_MOUSE)
    {
        ++hooksSet;
        lastHook = hook;
        EXPECT_EQ(GetCurrentThreadId(), thread);
    }
    return hook;
}

BOOL WINAPI CountTaken(HHOOK hook)
{
    const BOOL taken = realTake(hook);
    hooksTaken += taken && hook == lastHook;
    return taken;
}

} // namespace

TEST_F(MyRichEdit, OneHookStaysFromTheFirstSpinToTheLastAndComesBack)
{
    const ImportPatch set("SetWindowsHookExA", reinterpret_cast<void*>(CountSet));
    const ImportPatch take("UnhookWindowsHookEx", reinterpret_cast<void*>(CountTaken));
    ASSERT_TRUE(set.IsInPlace() && take.IsInPlace());
    realSet = set.Original<decltype(realSet)>();
    realTake = take.Original<decltype(realTake)>();
    hooksSet = hooksTaken = 0;

    auto first = std::make_unique<Field>(*parent);
    auto second = std::make_unique<Field>(*parent, 60);
    EXPECT_EQ(0, hooksSet);
    first->edit.EnableSpin();
    EXPECT_EQ(1, hooksSet);
    second->edit.EnableSpin();
    second->edit.EnableSpin();
    EXPECT_EQ(1, hooksSet);
    first.reset();
    EXPECT_EQ(0, hooksTaken);
    second.reset();
    EXPECT_EQ(1, hooksTaken);

    Field third(*parent);
    third.edit.EnableSpin();
    EXPECT_EQ(2, hooksSet);
    EXPECT_EQ(1, hooksTaken);
    third.ClickUp();
    EXPECT_EQ("1", third.Text());
}

TEST_F(MyRichEdit, EnablingTheSpinTwiceStepsOnce)
{
    Field field(*parent);
    field.edit.EnableSpin();
    field.edit.EnableSpin();
    EXPECT_EQ(CRect(0, 0, kWidth - 25, kHeight), ClientOf(field.edit));
    field.ClickUp();
    EXPECT_EQ("1", field.Text());
}

TEST_F(MyRichEdit, AnObjectWhoseWindowIsGoneIsLeftAlone)
{
    Field gone(*parent);
    Field stays(*parent, 60);
    gone.edit.EnableSpin();
    stays.edit.EnableSpin();
    gone.edit.DestroyWindow();
    ClickAt(*parent, 20 + kInColumn, 20 + kInUp);
    stays.ClickUp();
    EXPECT_EQ("1", stays.Text());
    gone.edit.ReleaseSpin();
}

// ---- Keys

TEST_F(MyRichEdit, InputModesFilterWhatIsTyped)
{
    const char* const kTyped = "a1-2.5 +3";
    const struct
    {
        int mode;
        const char* text;
    } kCases[] = {{kAnyKey, "a1-2.5 +3"}, {kDecimalKeys, "1-2.53"}, {kIntegerKeys, "1-253"}};
    for (const auto& expected : kCases)
    {
        Field field(*parent);
        field.edit.SetInputMode(expected.mode);
        field.Type(kTyped);
        EXPECT_EQ(expected.text, field.Text()) << expected.mode;
    }
}

TEST_F(MyRichEdit, TheKeysOfAStockEditStillWork)
{
    Field field(*parent);
    field.edit.SetInputMode(kIntegerKeys);
    field.Type("123");
    field.edit.SendMessage(WM_KEYDOWN, VK_BACK);
    EXPECT_EQ("12", field.Text());
    field.edit.SendMessage(WM_KEYDOWN, VK_HOME);
    field.edit.SendMessage(WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ("2", field.Text());
    field.edit.SendMessage(WM_KEYDOWN, VK_RIGHT);
    field.Type("-");
    EXPECT_EQ("2-", field.Text());
}

TEST_F(MyRichEdit, CopyAndPasteByKeyboardPassTheFilter)
{
    Field field(*parent);
    field.edit.SetInputMode(kIntegerKeys);
    field.edit.SetFocus();
    PressKey('4');
    PressKey('A');
    PressKey('2');
    EXPECT_EQ("42", field.Text());
    PressKey('A', VK_CONTROL);
    PressKey('C', VK_CONTROL);
    PressKey(VK_END);
    PressKey('V', VK_CONTROL);
    EXPECT_EQ("4242", field.Text());
    PressKey(VK_BACK);
    EXPECT_EQ("424", field.Text());
}

TEST_F(MyRichEdit, ADigitsOnlyFieldDropsOtherCharactersBeforeTheyAreDispatched)
{
    Field digits(*parent, 20, WS_BORDER | ES_NUMBER);
    Field any(*parent, 60);
    const auto isDropped = [&](HWND window, UINT message, WPARAM key)
    {
        MSG posted = {window, message, key, 1, 0, {}};
        return CWnd::WalkPreTranslateTree(*parent, &posted) != FALSE;
    };
    EXPECT_TRUE(isDropped(digits.edit, WM_CHAR, 'a'));
    EXPECT_TRUE(isDropped(digits.edit, WM_CHAR, '-'));
    EXPECT_TRUE(isDropped(digits.edit, WM_CHAR, '.'));
    EXPECT_TRUE(isDropped(digits.edit, WM_CHAR, 8));
    EXPECT_FALSE(isDropped(digits.edit, WM_CHAR, '0'));
    EXPECT_FALSE(isDropped(digits.edit, WM_CHAR, '9'));
    EXPECT_FALSE(isDropped(digits.edit, WM_KEYDOWN, VK_BACK));
    EXPECT_FALSE(isDropped(any.edit, WM_CHAR, 'a'));
    const HWND child = CreateWindowExA(0, "Static", "", WS_CHILD, 0, 0, 5, 5, digits.edit, nullptr,
                                       nullptr, nullptr);
    EXPECT_FALSE(isDropped(child, WM_CHAR, 'a'));
}

// ---- Looks

TEST_F(MyRichEdit, TextAndBackgroundTakeTheirColours)
{
    Field field(*parent);
    field.edit.SetBackColor(kFieldBack);
    field.edit.SetTextColor(kAccent);
    field.Put("8");
    Paint(field.edit);

    CHARFORMAT format = {};
    field.edit.GetDefaultCharFormat(format);
    EXPECT_COLOR(kAccent, format.crTextColor);
    EXPECT_EQ(0u, format.dwEffects & CFE_AUTOCOLOR);
    EXPECT_COLOR(kFieldBack, PixelOf(field.edit, kWidth - 10, kHeight / 2));
    EXPECT_FALSE(Extent(field.edit, kWidth, kHeight, kAccent).IsRectEmpty());
}

TEST_F(MyRichEdit, TheTextIsCentredVertically)
{
    parent->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(GetCachedFont("宋体", -16, 400)));
    Field field(*parent);
    field.edit.CenterTextVertically();
    CRect text;
    field.edit.SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
    const CRect client = ClientOf(field.edit);
    EXPECT_EQ(client.left, text.left);
    EXPECT_EQ(client.right, text.right);
    EXPECT_GT(text.Height(), 0);
    EXPECT_EQ((client.Height() - text.Height()) / 2, text.top);
}

TEST_F(MyRichEdit, TheTextStaysCentredWhenTheSpinTakesItsColumn)
{
    Field field(*parent);
    field.edit.CenterTextVertically();
    field.edit.EnableSpin();
    CRect text;
    field.edit.SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
    const CRect client = ClientOf(field.edit);
    EXPECT_EQ(client.right, text.right);
    EXPECT_EQ((client.Height() - text.Height()) / 2, text.top);
}

TEST_F(MyRichEdit, AFormatRectangleOfTheCallersEndsTheCentring)
{
    Field field(*parent);
    field.edit.CenterTextVertically();
    const CRect place(4, 2, 60, 20);
    field.edit.SetFormatRect(&place);
    field.edit.SendMessage(WM_SIZE, SIZE_RESTORED,
                           MAKELPARAM(ClientOf(field.edit).right, ClientOf(field.edit).bottom));
    CRect text;
    field.edit.SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
    EXPECT_EQ(place, text);
}

// ---- Cost

namespace
{

int objectsMade;
decltype(&CreateSolidBrush) realBrush;
decltype(&CreatePen) realPen;

HBRUSH WINAPI CountBrush(COLORREF color)
{
    ++objectsMade;
    return realBrush(color);
}

HPEN WINAPI CountPen(int style, int width, COLORREF color)
{
    ++objectsMade;
    return realPen(style, width, color);
}

} // namespace

TEST_F(MyRichEdit, PaintingMakesNoDrawingObjects)
{
    Field field(*parent);
    field.edit.EnableSpin();
    Paint(field.edit);
    const ImportPatch brush("CreateSolidBrush", reinterpret_cast<void*>(CountBrush));
    const ImportPatch pen("CreatePen", reinterpret_cast<void*>(CountPen));
    ASSERT_TRUE(brush.IsInPlace() && pen.IsInPlace());
    realBrush = brush.Original<decltype(realBrush)>();
    realPen = pen.Original<decltype(realPen)>();
    objectsMade = 0;

    const int before = CountGdiObjects();
    for (int paint = 0; paint < 100; ++paint)
        Paint(field.edit);
    field.edit.SpinClick(CPoint(kInColumn, kInUp));
    EXPECT_EQ(0, objectsMade);
    EXPECT_EQ(before, CountGdiObjects());

    // The counter does count.
    GetCachedBrush(RGB(9, 8, 7));
    EXPECT_EQ(1, objectsMade);
}

TEST_F(MyRichEdit, AThousandFieldsLeaveNothingBehind)
{
    const auto makeOne = [&]
    {
        Field field(*parent);
        field.edit.SetBackColor(kFieldBack);
        field.edit.SetTextColor(kControlText);
        field.edit.CenterTextVertically();
        field.edit.EnableSpin();
        field.edit.SpinClick(CPoint(kInColumn, kInUp));
        Paint(field.edit);
    };
    ExpectNothingLeftBehind(makeOne);
}
