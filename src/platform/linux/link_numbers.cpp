#include "platform/linux/link_numbers.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr std::uint32_t largestNumber = 65535;

constexpr auto byKey = [](const auto& a, const auto& b) { return a.key < b.key; };

}  // namespace

void LinkNumbers::assign(std::span<const LinkSource::Link> links) {
    numbers_.assign(links.size(), 0);
    byNumber_.clear();
    byIndex_.clear();
    for (std::size_t place = 0; place < links.size(); ++place) {
        const std::uint32_t index = links[place].index;
        byIndex_.push_back({index, place});
        if (index == 0 || index > largestNumber) continue;
        numbers_[place] = static_cast<std::uint16_t>(index);
        byNumber_.push_back({index, place});
    }
    std::sort(byIndex_.begin(), byIndex_.end(), byKey);
    std::sort(byNumber_.begin(), byNumber_.end(), byKey);
    // In the order of the kernel's numbers, so that the order of the dump does not matter.
    for (const auto& [index, place] : byIndex_) {
        if (index <= largestNumber || byNumber_.size() >= largestNumber) continue;
        std::uint32_t number = 1 + index % largestNumber;
        while (find(byNumber_, number))
            number = 1 + number % largestNumber;
        numbers_[place] = static_cast<std::uint16_t>(number);
        const Entry entry{number, place};
        byNumber_.insert(std::upper_bound(byNumber_.begin(), byNumber_.end(), entry, byKey), entry);
    }
}

std::optional<std::size_t> LinkNumbers::placeOfNumber(std::uint32_t number) const {
    return find(byNumber_, number);
}

std::optional<std::size_t> LinkNumbers::placeOfIndex(std::uint32_t index) const {
    return find(byIndex_, index);
}

std::optional<std::size_t> LinkNumbers::find(const std::vector<Entry>& sorted, std::uint32_t key) {
    const auto found = std::lower_bound(sorted.begin(), sorted.end(), Entry{key, 0}, byKey);
    if (found == sorted.end() || found->key != key) return std::nullopt;
    return found->place;
}

}  // namespace vantor
