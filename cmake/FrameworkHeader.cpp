// Holds the precompiled header of the framework; the build needs a source for it.
