#pragma once

#include <utility>

#include "platform/macos/frameworks/core_foundation_table.h"
#include "platform/macos/frameworks/library_loader.h"

namespace vantor {

/// Owns a library that was opened at run time, or nothing where it could not be.
class LoadedFramework {
  public:
    LoadedFramework(const LibraryLoader& loader, const char* path)
        : loader_(loader), library_(loader.open(path)) {}
    LoadedFramework(LoadedFramework&& other) noexcept
        : loader_(other.loader_), library_(std::exchange(other.library_, nullptr)) {}
    LoadedFramework& operator=(LoadedFramework&& other) noexcept {
        if (this != &other) {
            close();
            loader_ = other.loader_;
            library_ = std::exchange(other.library_, nullptr);
        }
        return *this;
    }
    LoadedFramework(const LoadedFramework&) = delete;
    LoadedFramework& operator=(const LoadedFramework&) = delete;
    ~LoadedFramework() { close(); }

    explicit operator bool() const { return library_ != nullptr; }

    /// Sets `function`, null where there is none of that name.
    template <class Function>
    void findFunction(const char* name, Function& function) const {
        function = reinterpret_cast<Function>(find(name));
    }

    /// The address of what has that name; null where there is none.
    void* find(const char* name) const { return library_ ? loader_.find(library_, name) : nullptr; }

    /// A constant that is an object; null where there is none of that name.
    CFTypeRef findConstant(const char* name) const {
        const auto* const address = static_cast<const CFTypeRef*>(find(name));
        return address ? *address : nullptr;
    }

  private:
    void close() {
        if (library_) loader_.close(std::exchange(library_, nullptr));
    }

    LibraryLoader loader_;
    void* library_;
};

}  // namespace vantor
