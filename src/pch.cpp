// Anchors the library that owns the precompiled headers.
