#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vantor {

/// Keeps an observer registered for as long as it lives. It may outlive what it observes.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : end_(std::move(end)) {}
    Subscription(Subscription&& other) noexcept : end_(std::exchange(other.end_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            cancel();
            end_ = std::exchange(other.end_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { cancel(); }

    void cancel() {
        if (auto end = std::exchange(end_, nullptr)) end();
    }
    explicit operator bool() const { return end_ != nullptr; }

  private:
    std::function<void()> end_;
};

/// A value whose observers are told of every new one, just before it takes the old one's place:
/// an observer gets the coming value as its argument while value() still gives the old one.
///
/// One thread only (the main thread throughout Vantor). Observers may come and go, and may set the
/// value again, while they are being told.
template <class T>
class Published {
  public:
    using Observer = std::function<void(const T&)>;

    explicit Published(T initial) : value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& value() const { return value_; }

    void set(T next) {
        tell(next);
        value_ = std::move(next);
    }

    /// Like set, but swaps: `next` leaves holding the old value, its storage ready for reuse.
    void publish(T& next) {
        tell(next);
        std::swap(value_, next);
    }

    /// Tells `observer` of every coming value, equal ones included; not of the present one.
    [[nodiscard]] Subscription observe(Observer observer) {
        const auto entry = std::make_shared<Entry>(Entry{std::move(observer)});
        observers_->push_back(entry);
        return Subscription{[list = std::weak_ptr(observers_), entry] {
            if (const auto observers = list.lock()) std::erase(*observers, entry);
            entry->isActive = false;
        }};
    }

    /// The stream of changes: skips the present value and every repetition of an equal one.
    [[nodiscard]] Subscription observeChanges(Observer observer) {
        return observe([last = value_, observer = std::move(observer)](const T& next) mutable {
            if (next == last) return;
            last = next;
            observer(next);
        });
    }

  private:
    struct Entry {
        Observer observer;  // stays whole when its subscription ends while it is being told
        bool isActive = true;
    };
    using Observers = std::vector<std::shared_ptr<Entry>>;

    void tell(const T& next) {
        if (observers_->empty()) return;
        const Observers told = *observers_;  // a copy: observers may come and go meanwhile
        for (const auto& entry : told) {
            if (entry->isActive) entry->observer(next);
        }
    }

    T value_;
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

}  // namespace vantor
