#pragma once

/// Number of GDI objects that this process holds. Compare two values only after a warm-up: the
/// first use of a control or of a font makes objects that stay.
int CountGdiObjects();
