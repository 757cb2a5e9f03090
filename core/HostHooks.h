// What the host gave the module: its callback and the flags of optional features.
#pragma once

#include <zorvane/TOParam.h>
#include <zorvane/ZorvaneInterface.h>

/// Keeps the host's callback for CallHost; replaces an earlier one.
void SetHostCallback(ZorvaneHostCallback callback);

/// Asks the host. The callback must have been set: no page runs before the host's Init.
/// @return the host's answer, see ZorvaneHostRequest
unsigned long CallHost(ZorvaneHostRequest request, unsigned int argument = 0);

/// Stores the flag of a feature for the life of the module.
void SetSpecialUI(SpecialUI key, bool on);

/// The flag stored under `key`; false for one that was never set.
bool GetSpecialUI(int key);
