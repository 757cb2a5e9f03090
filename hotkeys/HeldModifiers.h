// Which modifier keys are held: the only place that looks at the keyboard. Windows only.
#pragma once

#include <cstdint>

/// HotKeyModifier bits of the keys that are held, as of the thread's current message.
uint8_t ReadKeyboardModifiers();

/// What the stores ask; a test puts its own answer here.
extern uint8_t (*gReadHeldModifiers)();
