// A record to open the window with.
#pragma once

#include <zorvane/TOParam.h>

/// The record of a client that was never used: no page refuses anything in it.
TOParam FactoryRecord();
