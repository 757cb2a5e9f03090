// The stores of keyboard-order rows that live while the settings window is open, and access to them
// by type. A type without a store and a row number outside its list fail silently. Windows only.
#pragma once

#include "hotkeys/HotKeyBase.h"

/// The registry: `CHotKey` objects which it owns.
extern std::vector<CHotKeyBase*> gHotKeyStores;

/// Fills the empty registry with new stores of types 2, 0 and 1, in this order, unloaded.
void CreateHotKeyStores();

/// Deletes the stores and empties the registry.
void DestroyHotKeyStores();

/// The first store of that type, or null.
CHotKeyBase* FindHotKeyStore(int type);

/// @return 1, or 0 when there is no such store
int LoadHotKeys(int type);
/// @return 1
int LoadAllHotKeys();
/// @return 1, or 0 when there is no such store
int SaveHotKeys(int type);
/// @return 1
int SaveAllHotKeys();

/// Number of rows, 0 without such a store.
int GetHotKeyCount(int type);

/// Copies the row. @return 1, or 0 on failure
int GetHotKeyRecord(int type, int row, HotKeyRecord* out);

/// Writes the row's key name, `kKeyNameSize` bytes; on failure `out` stays untouched.
void GetHotKeyName(int type, int row, char* out);

/// Appends a default row without a key. @return its row number, or -1 on failure
int AddHotKeyRow(int type);

/// Erases the row; later rows move up.
void RemoveHotKeyRow(int type, int row);

/// Each sets one field of a row. @return 1, or 0 on failure
int SetHotKeyAction(int type, int row, int action);
int SetHotKeyBuySell(int type, int row, char buySell);
int SetHotKeyOverTicks(int type, int row, int overTicks);
int SetHotKeyCovered(int type, int row, int covered);
int SetHotKeyMultiple(int type, int row, int multiple);
int SetHotKeyOpenClose(int type, int row, char openClose);
/// A text of more than 32 bytes is cut at a character.
int SetHotKeyPriceType(int type, int row, const char* text);

/// Gives the row this key with the modifiers held now; see `CHotKeyBase::CaptureKey`.
/// @return 1 when the key stands or was cleared, 0 for a duplicate or on failure
int CaptureHotKey(int type, int row, unsigned int vk, char* out);
