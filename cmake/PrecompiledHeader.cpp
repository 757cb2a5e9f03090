// Holds a precompiled header; the build needs a source for it.
