#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace vantor {

/// A callable that is moved, never copied, and lives inside this object when it fits into
/// `Capacity` bytes. std::function would put every work item of the samplers on the heap, at each
/// pass; this one keeps the steady state free of allocations. Larger callables still work, boxed.
template <class Signature, std::size_t Capacity = 64>
class UniqueFunction;

template <class R, class... Args, std::size_t Capacity>
class UniqueFunction<R(Args...), Capacity> {
  public:
    UniqueFunction() = default;

    template <class F>
    requires(!std::same_as<std::remove_cvref_t<F>, UniqueFunction> &&
             std::is_invocable_r_v<R, std::remove_cvref_t<F>&, Args...>)
        UniqueFunction(F&& callable) {  // NOLINT(google-explicit-constructor): meant to convert
        using Callable = std::remove_cvref_t<F>;
        if constexpr (fits<Callable>) {
            emplace<Callable>(std::forward<F>(callable));
        } else {
            emplace<Boxed<Callable>>(
                Boxed<Callable>{std::make_unique<Callable>(std::forward<F>(callable))});
        }
    }

    UniqueFunction(UniqueFunction&& other) noexcept { take(other); }
    UniqueFunction& operator=(UniqueFunction&& other) noexcept {
        if (this != &other) {
            reset();
            take(other);
        }
        return *this;
    }
    UniqueFunction(const UniqueFunction&) = delete;
    UniqueFunction& operator=(const UniqueFunction&) = delete;
    ~UniqueFunction() { reset(); }

    explicit operator bool() const { return operations_ != nullptr; }

    /// Must hold a callable.
    R operator()(Args... arguments) {
        // NOLINTNEXTLINE(clang-analyzer-core.NullDereference): the caller's promise
        return operations_->invoke(storage_, std::forward<Args>(arguments)...);
    }

  private:
    template <class F>
    static constexpr bool fits =
        sizeof(F) <= Capacity &&
        alignof(F) <= alignof(std::max_align_t) && std::is_nothrow_move_constructible_v<F>;

    template <class F>
    struct Boxed {
        std::unique_ptr<F> callable;
        R operator()(Args... arguments) { return (*callable)(std::forward<Args>(arguments)...); }
    };

    struct Operations {
        R (*invoke)(std::byte*, Args&&...);
        void (*move)(std::byte* from, std::byte* to) noexcept;
        void (*destroy)(std::byte*) noexcept;
    };

    template <class F>
    static F& held(std::byte* storage) {
        return *std::launder(reinterpret_cast<F*>(storage));
    }

    template <class F>
    static constexpr Operations operationsOf{
        [](std::byte* storage, Args&&... arguments) -> R {
            return held<F>(storage)(std::forward<Args>(arguments)...);
        },
        [](std::byte* from, std::byte* to) noexcept {
            std::construct_at(reinterpret_cast<F*>(to), std::move(held<F>(from)));
            std::destroy_at(&held<F>(from));
        },
        [](std::byte* storage) noexcept { std::destroy_at(&held<F>(storage)); }};

    template <class F, class Argument>
    void emplace(Argument&& argument) {
        std::construct_at(reinterpret_cast<F*>(storage_), std::forward<Argument>(argument));
        operations_ = &operationsOf<F>;
    }

    void take(UniqueFunction& other) noexcept {
        if (!other.operations_) return;
        other.operations_->move(other.storage_, storage_);
        operations_ = std::exchange(other.operations_, nullptr);
    }

    void reset() noexcept {
        if (operations_) std::exchange(operations_, nullptr)->destroy(storage_);
    }

    alignas(std::max_align_t) std::byte storage_[Capacity];
    const Operations* operations_ = nullptr;
};

/// One piece of work for a queue or a loop.
using Task = UniqueFunction<void(), 144>;

}  // namespace vantor
