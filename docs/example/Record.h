// The client's record.
#pragma once

#include <zorvane/TOParam.h>

/// Reads every key of the package file: the trader's, else the packaged one.
TOParam LoadRecord();
