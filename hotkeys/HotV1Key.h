#pragma once

#include "hotkeys/HotKeyBase.h"

/// Quick keys, kept in `.\cfg\trade\HotV1Key%d.dat`. `list` holds all rows; the user works on
/// `visible`, copies of the rows on show, which are taken over into `list` by `Save` and
/// `SetNetMode`.
class CHotV1Key final : public CHotKeyBase
{
public:
    explicit CHotV1Key(int type)
        : type(type)
    {
    }

    void Save() override;

    /// Reads the file, an old one of keyboard-order format included. Without any rows in it the
    /// defaults are taken; the file itself is left as it is until the next `Save`.
    void Load() override;

    int GetType() const override { return type; }
    HotKeyList& GetList() override { return visible; }

    /// Shows the net-position rows in place of the classic ones, or the other way round.
    void SetNetMode(bool net);

    /// Whether a net-position row is on show.
    bool HasNetRows() const;

    int type;
    HotKeyList visible;
};
