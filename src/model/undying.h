#pragma once

#include <utility>

namespace vantor {

/// A value in static storage that is never destroyed: a reading may still be under way on a
/// provider's thread when the program ends, and nobody waits for it.
template <class T>
class Undying {
  public:
    explicit Undying(T value) : value_(std::move(value)) {}
    Undying(const Undying&) = delete;
    Undying& operator=(const Undying&) = delete;
    ~Undying() {}  // NOLINT(modernize-use-equals-default): a union's member is destroyed by hand

    const T& get() const { return value_; }

  private:
    union {
        T value_;
    };
};

}  // namespace vantor
