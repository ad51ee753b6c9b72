#include "probes/name_ranks.h"

#include <cstddef>

namespace vantor {

void NameRanks::learnAnew(const std::vector<std::string>& names) {
    const std::vector<std::uint32_t> ranks = order_->ranks(names);
    ranks_.clear();
    for (std::size_t i = 0; i < names.size(); ++i)
        ranks_.hold(names[i]).value = ranks[i];
}

}  // namespace vantor
