#include "skin/SkinCache.h"

#include "core/Text.h"
#include "skin/BitmapFile.h"
#include "skin/Palette.h"

#include <cstdlib>
#include <map>
#include <string>
#include <tuple>

namespace
{

constexpr int kFontSlots = 2048;
constexpr int kPageMargin = 16;

HFONT fonts[kFontSlots];
int usedFontSlots = 0;

float UIScale = 1.0f;

HFONT MakeFont(const char* face, int height, int weight)
{
    return CreateFontA(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FF_SWISS, face);
}

bool IsWholeBitmapFile(const char* path)
{
    const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    uint8_t head[kBitmapHeadSize];
    DWORD headSize = 0;
    LARGE_INTEGER size{};
    const bool isWhole = ReadFile(file, head, sizeof(head), &headSize, nullptr) &&
                         GetFileSizeEx(file, &size) &&
                         HoldsWholeBitmap(head, headSize, static_cast<uint64_t>(size.QuadPart));
    CloseHandle(file);
    return isWhole;
}

} // namespace

HBRUSH GetCachedBrush(COLORREF color)
{
    static std::map<COLORREF, HBRUSH> brushes;
    const auto [entry, isNew] = brushes.try_emplace(color);
    if (isNew)
        entry->second = CreateSolidBrush(color);
    return entry->second;
}

HPEN GetCachedPen(int width, COLORREF color, WORD style)
{
    // Ordered by width and style as one word first, then by colour.
    using Key = std::tuple<DWORD, COLORREF>;
    static std::map<Key, HPEN> pens;
    const auto [entry, isNew] = pens.try_emplace(Key(MAKELONG(width, style), color));
    if (isNew)
        entry->second = CreatePen(style, width, color);
    return entry->second;
}

int GetCachedFontSlot(const char* face, int height, int weight)
{
    static std::map<std::string, int> slots;
    char key[256];
    PrintTo(key, sizeof(key), "%s_%d_%d", face, height, weight);
    const auto found = slots.find(key);
    if (found != slots.end())
        return found->second;
    if (usedFontSlots == kFontSlots)
        return -1;

    const int slot = usedFontSlots++;
    fonts[slot] = MakeFont(face, height, weight);
    slots.emplace(key, slot);
    return slot;
}

HFONT GetCachedFontBySlot(int slot)
{
    return slot >= 0 && slot < usedFontSlots ? fonts[slot] : nullptr;
}

HFONT GetCachedFont(const char* face, int height, int weight)
{
    return GetCachedFontBySlot(GetCachedFontSlot(face, height, weight));
}

HDC GetSharedMemDC(HDC dc)
{
    static HDC shared = nullptr;
    if (!shared)
        shared = CreateCompatibleDC(dc);
    return shared;
}

HBITMAP GetSkinBitmap(const char* path)
{
    static std::map<std::string, HBITMAP> bitmaps;
    HBITMAP& bitmap = bitmaps[path];
    if (!bitmap)
        bitmap = LoadSkinBitmap(path);
    return bitmap;
}

HBITMAP LoadBitmapFile(const char* path, UINT flags)
{
    if (!IsWholeBitmapFile(path))
        return nullptr;
    return static_cast<HBITMAP>(
        LoadImageA(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | flags));
}

HBITMAP LoadSkinBitmap(const char* path)
{
    return LoadBitmapFile(path, LR_CREATEDIBSECTION);
}

SIZE GetBitmapSize(HBITMAP bitmap)
{
    BITMAP facts{};
    if (bitmap)
        GetObjectA(bitmap, sizeof(facts), &facts);
    return {facts.bmWidth, std::abs(facts.bmHeight)};
}

void FillPageBackground(HDC dc, HWND wnd)
{
    RECT area;
    GetClientRect(wnd, &area);
    FillPageBackground(dc, area);
}

void FillPageBackground(HDC dc, RECT area)
{
    FillRect(dc, &area, GetCachedBrush(kPageSurround));
    area.left += kPageMargin;
    area.top += kPageMargin;
    area.right -= kPageMargin;
    FillRect(dc, &area, GetCachedBrush(kPageSheet));
}

float GetUIScale()
{
    return UIScale;
}

void SetUIScale(float scale)
{
    UIScale = scale;
}

int Scaled(int length)
{
    return static_cast<int>(length * UIScale);
}
