// Records and files of the key stores spelled out byte by byte, as a client reads them.
#pragma once

#include "hotkeys/HotKeyRecord.h"

#include <cstring>
#include <string>

inline std::string Word(uint32_t value)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

inline std::string QuickKeyBytes(uint32_t action, int modifiers, int vk, int shown)
{
    std::string bytes = Word(action);
    bytes += static_cast<char>(modifiers);
    bytes += static_cast<char>(vk);
    bytes.append(47, '\0');
    bytes += static_cast<char>(shown);
    bytes.append(30, '\0');
    return bytes;
}

/// The file that the defaults of the quick keys make.
inline std::string DefaultQuickKeyFile()
{
    return Word(2) + QuickKeyBytes(18, 0, 112, 1) + QuickKeyBytes(19, 0, 113, 1) +
           QuickKeyBytes(20, 0, 114, 1) + QuickKeyBytes(21, 0, 115, 1) +
           QuickKeyBytes(22, 0, 65, 1) + QuickKeyBytes(23, 0, 90, 1) +
           QuickKeyBytes(24, 0, 116, 0) + QuickKeyBytes(25, 0, 117, 0);
}

/// A record whose 84 bytes are all different.
inline std::string PatternBytes(int first)
{
    std::string bytes;
    for (int i = 0; i < 84; ++i)
        bytes += static_cast<char>(first + i);
    return bytes;
}

inline std::string BytesOf(const HotKeyRecord& record)
{
    return {reinterpret_cast<const char*>(&record), sizeof(record)};
}

inline std::vector<uint32_t> ActionsOf(const HotKeyList& list)
{
    std::vector<uint32_t> actions;
    for (const HotKeyRecord& record : list)
        actions.push_back(record.action);
    return actions;
}

using Actions = std::vector<uint32_t>;

/// A row of the keyboard orders; by default the one that "添加" makes.
struct OrderKey
{
    uint32_t action = 2;
    int modifiers = 0;
    int vk = 0;
    char side = '0';
    std::string price = "对手价";
    int ticks = 0;
    int covered = 0;
    int multiple = 0;
    char openClose = '0';
    std::string rest = std::string(31, '\0'); ///< `shown` and what is reserved

    std::string Bytes() const
    {
        std::string bytes = Word(action);
        bytes += static_cast<char>(modifiers);
        bytes += static_cast<char>(vk);
        bytes += side;
        bytes += price + std::string(33 - price.size(), '\0');
        bytes += Word(static_cast<uint32_t>(ticks)) + Word(static_cast<uint32_t>(covered)) +
                 Word(static_cast<uint32_t>(multiple));
        bytes += openClose;
        return bytes + rest;
    }
};

inline std::string OrderKeyFile(const std::vector<OrderKey>& rows)
{
    std::string bytes = Word(1);
    for (const OrderKey& row : rows)
        bytes += row.Bytes();
    return bytes;
}
