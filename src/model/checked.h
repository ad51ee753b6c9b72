#pragma once

#include <concepts>
#include <optional>
#include <type_traits>

namespace vantor {

// Sums and products that are absent instead of wrong when they do not fit.

/// a + b.
template <std::integral T>
constexpr std::optional<T> checkedSum(T a, std::type_identity_t<T> b) {
    T sum{};
    if (__builtin_add_overflow(a, b, &sum)) return std::nullopt;
    return sum;
}

/// a * b.
template <std::integral T>
constexpr std::optional<T> checkedProduct(T a, std::type_identity_t<T> b) {
    T product{};
    if (__builtin_mul_overflow(a, b, &product)) return std::nullopt;
    return product;
}

}  // namespace vantor
