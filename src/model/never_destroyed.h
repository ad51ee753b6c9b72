#pragma once

#include <utility>

namespace vantor {

/// A value in static storage that is never destroyed: a reading may still run on a provider's
/// thread when the program ends, which does not wait for it.
template <class T>
class NeverDestroyed {
  public:
    explicit NeverDestroyed(T value) : value_(std::move(value)) {}
    NeverDestroyed(const NeverDestroyed&) = delete;
    NeverDestroyed& operator=(const NeverDestroyed&) = delete;
    // NOLINTNEXTLINE(modernize-use-equals-default): a union's member is destroyed by hand
    ~NeverDestroyed() {}

    const T& get() const { return value_; }

  private:
    union {
        T value_;
    };
};

}  // namespace vantor
