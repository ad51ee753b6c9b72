#pragma once

namespace vantor {

/// The dynamic loader's functions; none is null.
struct LibraryLoader {
    /// Null when there is no such library. Binds lazily and keeps the symbols to the handle.
    void* (*open)(const char* path);
    void (*close)(void* library);
    /// Null when the library has no such symbol.
    void* (*find)(void* library, const char* symbol);
};

/// dlopen, dlclose, dlsym.
LibraryLoader systemLibraryLoader();

}  // namespace vantor
