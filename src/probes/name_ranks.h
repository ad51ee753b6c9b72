#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/name_map.h"
#include "platform/name_order.h"

namespace vantor {

/// The places of names in the order of the user's language. That is asked for only when there is a
/// name which was not there before: lists of volumes and interfaces are sorted again and again, and
/// hardly ever have a new one. One thread at a time.
class NameRanks {
  public:
    explicit NameRanks(std::unique_ptr<NameOrder> order) : order_(std::move(order)) {}

    /// Ranks the names of these rows, all of them or, when each was known, none.
    template <class Rows>
    void learn(const Rows& rows) {
        bool isNew = ranks_.size() > 2 * rows.size() + manyNames;
        for (const auto& row : rows)
            isNew = isNew || !ranks_.find(row.name);
        if (!isNew) return;
        std::vector<std::string> names;
        names.reserve(rows.size());
        for (const auto& row : rows)
            names.push_back(row.name);
        learnAnew(names);
    }

    /// Of a name that was learned.
    std::uint32_t of(const std::string& name) const {
        const std::uint32_t* const rank = ranks_.find(name);
        return rank ? *rank : 0;
    }

  private:
    static constexpr std::size_t manyNames = 64;

    void learnAnew(const std::vector<std::string>& names);

    std::unique_ptr<NameOrder> order_;
    NameMap<std::uint32_t> ranks_;
};

}  // namespace vantor
