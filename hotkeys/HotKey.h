#pragma once

#include "hotkeys/HotKeyBase.h"

/// Keyboard-order rows, kept in `.\cfg\trade\HotKey%d.dat`.
class CHotKey final : public CHotKeyBase
{
public:
    explicit CHotKey(int type)
        : type(type)
    {
    }

    void Save() override;

    /// Leaves the list empty when there is no file or it is of another format.
    void Load() override;

    int GetType() const override { return type; }

    int type;
};
