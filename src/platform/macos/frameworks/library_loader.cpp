#include "platform/macos/frameworks/library_loader.h"

#include <dlfcn.h>

namespace vantor {

LibraryLoader systemLibraryLoader() {
    return {[](const char* path) { return ::dlopen(path, RTLD_LAZY | RTLD_LOCAL); },
            [](void* library) { ::dlclose(library); },
            [](void* library, const char* symbol) { return ::dlsym(library, symbol); }};
}

}  // namespace vantor
