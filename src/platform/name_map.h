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
/// only when most places are vacant are those given up. Ordered by name and walked in that order;
/// asked for names in that order, or in the order of the last time, it finds each at once. One
/// thread at a time, even where it is const: it remembers where it looked.
template <class Value>
class NameMap {
  public:
    struct Held {
        Value& value;
        bool isNew;  ///< it was not held before; the value is what was left at its place
    };

    std::size_t size() const { return size_; }

    const Value* find(std::string_view name) const {
        const std::size_t at = placeOf(name);
        return at < places_.size() && places_[at].isHeld && places_[at].name == name
                   ? &places_[at].value
                   : nullptr;
    }

    Held hold(std::string_view name) {
        const std::size_t at = placeOf(name);
        if (at == places_.size() || places_[at].name != name) {
            places_.insert(places_.begin() + static_cast<std::ptrdiff_t>(at),
                           Place{std::string(name), Value{}});
        }
        Place& place = places_[at];
        const bool isNew = !std::exchange(place.isHeld, true);
        if (isNew) ++size_;
        return {place.value, isNew};
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
        mutable std::size_t next = 0;  // a guess
    };

    static constexpr std::size_t fewPlaces = 16;

    /// Of the first name that is not before this one. Before it searches, it tries the last one
    /// found, the one that was found after that the last time, and the one behind it.
    std::size_t placeOf(std::string_view name) const {
        if (lastPlace_ < places_.size()) {
            for (const std::size_t at : {lastPlace_, places_[lastPlace_].next, lastPlace_ + 1}) {
                if (at < places_.size() && places_[at].name == name) return lastPlace_ = at;
            }
        }
        const auto found = std::lower_bound(places_.begin(), places_.end(), name,
                                            [](const Place& place, std::string_view n) {
                                                return std::string_view(place.name) < n;
                                            });
        const auto at = static_cast<std::size_t>(found - places_.begin());
        if (lastPlace_ < places_.size()) places_[lastPlace_].next = at;
        return lastPlace_ = at;
    }

    void giveUpVacantPlaces() {
        if (places_.size() <= 2 * size_ + fewPlaces) return;
        std::erase_if(places_, [](const Place& place) { return !place.isHeld; });
    }

    std::vector<Place> places_;
    std::size_t size_ = 0;
    mutable std::size_t lastPlace_ = 0;
};

}  // namespace vantor
