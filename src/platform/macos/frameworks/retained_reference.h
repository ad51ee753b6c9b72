#pragma once

#include <utility>

namespace vantor {

/// Owns one reference to an object of a framework and releases it exactly once.
class RetainedReference {
  public:
    using Release = void (*)(const void*);

    RetainedReference() = default;
    /// `object` may be null; `release` may not, unless it is.
    RetainedReference(const void* object, Release release) : object_(object), release_(release) {}
    RetainedReference(RetainedReference&& other) noexcept
        : object_(std::exchange(other.object_, nullptr)), release_(other.release_) {}
    RetainedReference& operator=(RetainedReference&& other) noexcept {
        if (this != &other) {
            reset();
            object_ = std::exchange(other.object_, nullptr);
            release_ = other.release_;
        }
        return *this;
    }
    RetainedReference(const RetainedReference&) = delete;
    RetainedReference& operator=(const RetainedReference&) = delete;
    ~RetainedReference() { reset(); }

    const void* get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    void reset() {
        if (object_) release_(std::exchange(object_, nullptr));
    }
    /// Transfers the reference to the caller, who releases it.
    const void* giveAway() { return std::exchange(object_, nullptr); }

  private:
    const void* object_ = nullptr;
    Release release_ = nullptr;
};

}  // namespace vantor
