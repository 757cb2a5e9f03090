#pragma once

/// The framework's base: run-time classes, strings, exceptions, geometry, diagnostics.
/// ANSI build, 32-bit Windows, statically linked.

#include "mfc/parts/Platform.h"

#include "mfc/parts/Debug.h"
#include "mfc/parts/Object.h"
#include "mfc/parts/String.h"

#include "mfc/parts/Exceptions.h"
#include "mfc/parts/Geometry.h"
