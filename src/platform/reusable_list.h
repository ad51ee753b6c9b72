#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace vantor {

/// A list that is emptied and filled again and again. An entry that goes leaves its place with all
/// of its storage, texts included, so that filling it with the same things again allocates nothing;
/// only when most places are vacant are those given up.
template <class Entry>
class ReusableList {
  public:
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    Entry& operator[](std::size_t place) { return places_[place]; }
    const Entry& operator[](std::size_t place) const { return places_[place]; }
    Entry& back() { return places_[size_ - 1]; }

    auto begin() const { return all().begin(); }
    auto end() const { return all().end(); }
    std::span<const Entry> all() const { return std::span(places_).first(size_); }

    void clear() {
        if (places_.size() > 2 * size_ + fewPlaces) places_.resize(size_);
        size_ = 0;
    }

    /// One more at the end, with whatever was left at its place. May move the others.
    Entry& add() {
        if (size_ == places_.size()) places_.emplace_back();
        return places_[size_++];
    }

  private:
    static constexpr std::size_t fewPlaces = 16;

    std::vector<Entry> places_;
    std::size_t size_ = 0;
};

}  // namespace vantor
