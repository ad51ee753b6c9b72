// Belongs to the library that the precompiled headers are made for.
