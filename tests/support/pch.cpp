// The precompiled header of the tests needs one translation unit to be built from.
