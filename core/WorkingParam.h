// The module's one working copy of the host's record.
#pragma once

#include <zorvane/TOParam.h>

/// The record that the settings window edits and save-all writes. Lives as long as the module; all
/// zero until the first copy.
TOParam& WorkingParam();

/// Takes the host's record over, all 811 bytes. The host's own record is never written.
void CopyToWorkingParam(const TOParam& record);
