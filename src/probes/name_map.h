#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantor {

/// Values by name, for sets of interfaces that are emptied and filled again at every reading.
///
/// The standard maps give a node back when its key goes, texts and all. Here a name that goes keeps
/// its place and the storage of its value, so that the same names coming back allocate nothing;
/// only when most places are vacant are those given up. Ordered by name; walked in that order.
template <class Value>
class NameMap {
  public:
    struct Held {
        Value& value;
        bool isNew;  ///< it was not held before; the value is what was left at its place
    };

    std::size_t size() const { return size_; }

    Value* find(std::string_view name) {
        const auto place = lowerBound(name);
        return place != places_.end() && place->isHeld && place->name == name ? &place->value
                                                                              : nullptr;
    }
    const Value* find(std::string_view name) const {
        return const_cast<NameMap*>(this)->find(name);  // NOLINT: it changes nothing
    }

    Held hold(std::string_view name) {
        auto place = lowerBound(name);
        if (place == places_.end() || place->name != name) {
            place = places_.insert(place, Place{std::string(name), Value{}, false});
        }
        const bool isNew = !std::exchange(place->isHeld, true);
        if (isNew) ++size_;
        return {place->value, isNew};
    }

    void clear() {
        giveUpVacantPlaces();
        for (Place& place : places_)
            place.isHeld = false;
        size_ = 0;
    }

    /// Lets go of the names for which `predicate(name)` holds.
    template <class Predicate>
    void eraseIf(Predicate predicate) {
        for (Place& place : places_) {
            if (!place.isHeld || !predicate(std::as_const(place.name))) continue;
            place.isHeld = false;
            --size_;
        }
        giveUpVacantPlaces();
    }

    /// Calls `visit(name, value)` for each.
    template <class Visit>
    void forEach(Visit visit) const {
        for (const Place& place : places_) {
            if (place.isHeld) visit(place.name, place.value);
        }
    }

  private:
    struct Place {
        std::string name;
        Value value;
        bool isHeld = false;
    };

    static constexpr std::size_t fewPlaces = 16;

    auto lowerBound(std::string_view name) {
        return std::lower_bound(places_.begin(), places_.end(), name,
                                [](const Place& place, std::string_view n) {
                                    return std::string_view(place.name) < n;
                                });
    }

    void giveUpVacantPlaces() {
        if (places_.size() <= 2 * size_ + fewPlaces) return;
        std::erase_if(places_, [](const Place& place) { return !place.isHeld; });
    }

    std::vector<Place> places_;
    std::size_t size_ = 0;
};

}  // namespace vantor
