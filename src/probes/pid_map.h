#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

namespace vantor {

/// A map from process identifiers (above 0) to values, made for being filled and cleared at each
/// pass: entries lie in two flat arrays that clear() keeps, so the steady state allocates nothing.
///
/// Identifiers that follow each other lie beside each other, as processes are visited in that
/// order; the groups of eight are scattered, so that two dense ranges do not pile up on the same
/// places. Values must be default-constructible and movable. Pointers hold until the next
/// insertion, erasure or clearing.
template <class Value>
class PIDMap {
  public:
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }

    /// How many entries fit without new storage.
    std::size_t capacity() const { return limitOf(keys_.size()); }

    void reserve(std::size_t count) {
        if (count > capacity()) rebuild(placesFor(count));
    }

    void clear() {
        if (size_ == 0) return;
        if constexpr (!std::is_trivially_destructible_v<Value>) {
            for (std::size_t i = 0; i < keys_.size(); ++i) {
                if (keys_[i] != 0) values_[i] = Value{};
            }
        }
        std::fill(keys_.begin(), keys_.end(), 0);
        size_ = 0;
    }

    Value* find(std::int32_t pid) { return const_cast<Value*>(std::as_const(*this).find(pid)); }
    const Value* find(std::int32_t pid) const {
        if (size_ == 0) return nullptr;
        const std::size_t place = placeOf(pid);
        return keys_.data()[place] == pid ? values_.data() + place : nullptr;
    }
    bool contains(std::int32_t pid) const { return find(pid) != nullptr; }

    /// The value of `pid`, made now when there is none.
    Value& operator[](std::int32_t pid) {
        if (size_ + 1 > capacity()) rebuild(placesFor(size_ + 1));
        const std::size_t place = placeOf(pid);
        std::int32_t& key = keys_.data()[place];
        Value& value = values_.data()[place];
        if (key != pid) {
            key = pid;
            value = Value{};
            ++size_;
        }
        return value;
    }

    void erase(std::int32_t pid) {
        if (size_ == 0) return;
        std::size_t hole = placeOf(pid);
        if (keys_[hole] != pid) return;
        // Entries that were pushed past this place by it move back, so that searches may end at a
        // gap.
        for (std::size_t next = after(hole); keys_[next] != 0; next = after(next)) {
            const std::size_t home = homeOf(keys_[next]);
            const std::size_t mask = keys_.size() - 1;
            if (((next - home) & mask) < ((next - hole) & mask)) continue;
            keys_[hole] = keys_[next];
            values_[hole] = std::move(values_[next]);
            hole = next;
        }
        keys_[hole] = 0;
        values_[hole] = Value{};
        --size_;
    }

    template <class Visit>
    void forEach(Visit visit) const {
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            if (keys_[i] != 0) visit(keys_[i], values_[i]);
        }
    }

    /// Frees what more than `count` entries, or those that are there, would need.
    void shrink(std::size_t count) { rebuild(placesFor(std::max(count, size_))); }

    /// Frees all storage.
    void reset() { *this = PIDMap{}; }

  private:
    static constexpr std::size_t fewestPlaces = 16;
    static constexpr unsigned groupBits = 3;

    static std::size_t limitOf(std::size_t places) { return places - places / 4; }
    static std::size_t placesFor(std::size_t count) {
        std::size_t places = fewestPlaces;
        while (limitOf(places) < count)
            places *= 2;
        return count == 0 ? 0 : places;
    }

    std::size_t homeOf(std::int32_t pid) const {
        const auto key = static_cast<std::uint32_t>(pid);
        const std::uint64_t group = (key >> groupBits) * std::uint64_t{0x9E3779B97F4A7C15U} >> 32;
        const std::uint64_t home = group << groupBits | (key & ((1U << groupBits) - 1));
        return static_cast<std::size_t>(home) & (keys_.size() - 1);
    }
    std::size_t after(std::size_t place) const { return (place + 1) & (keys_.size() - 1); }

    /// Where `pid` is, or the gap where it would be put.
    std::size_t placeOf(std::int32_t pid) const {
        // By the pointer: masked, a place is always within, and an operator that checks it takes
        // longer than the comparison.
        const std::int32_t* const keys = keys_.data();
        const std::size_t mask = keys_.size() - 1;
        std::size_t place = homeOf(pid);
        while (keys[place] != 0 && keys[place] != pid)
            place = (place + 1) & mask;
        return place;
    }

    void rebuild(std::size_t places) {
        std::vector<std::int32_t> keys(places);
        std::vector<Value> values(places);
        keys_.swap(keys);
        values_.swap(values);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (keys[i] == 0) continue;
            const std::size_t place = placeOf(keys[i]);
            keys_[place] = keys[i];
            values_[place] = std::move(values[i]);
        }
    }

    std::vector<std::int32_t> keys_;  // 0 = free
    std::vector<Value> values_;
    std::size_t size_ = 0;
};

/// A set of process identifiers, in the same way.
class PIDSet {
  public:
    std::size_t size() const { return map_.size(); }
    std::size_t capacity() const { return map_.capacity(); }
    void reserve(std::size_t count) { map_.reserve(count); }
    void clear() { map_.clear(); }
    void insert(std::int32_t pid) { map_[pid]; }
    bool contains(std::int32_t pid) const { return map_.contains(pid); }
    void reset() { map_.reset(); }

  private:
    struct Nothing {};
    PIDMap<Nothing> map_;
};

}  // namespace vantor
