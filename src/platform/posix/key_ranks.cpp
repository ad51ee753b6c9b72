#include "platform/posix/key_ranks.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vantor {

std::vector<std::uint32_t> ranksOfKeys(std::vector<std::string> keys) {
    std::vector<std::pair<std::string, std::size_t>> sorted;
    sorted.reserve(keys.size());
    for (std::string& key : keys)
        sorted.emplace_back(std::move(key), sorted.size());
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::uint32_t> ranks(sorted.size());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && sorted[i].first != sorted[i - 1].first) ++rank;
        ranks[sorted[i].second] = rank;
    }
    return ranks;
}

}  // namespace vantor
