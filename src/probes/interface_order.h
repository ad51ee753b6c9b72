#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/network_interface_stats.h"
#include "probes/name_ranks.h"

namespace vantor {

/// Sorts the list of interfaces: the primary one first, then those that have an address, then by
/// their traffic, then by name. What it works with is kept, so that sorting the same interfaces
/// again allocates nothing. One thread at a time.
class InterfaceOrder {
  public:
    explicit InterfaceOrder(std::unique_ptr<NameOrder> names) : ranks_(std::move(names)) {}

    /// `primaryName` is null where it is not known. No two rows have the same name.
    void sort(std::vector<NetworkInterfaceStats>& rows, const std::string* primaryName);

    /// Puts the rows that were sorted last, and are as they were then, back to where they had been.
    void undo(std::vector<NetworkInterfaceStats>& rows);

  private:
    /// What decides about a row, read once.
    struct Place {
        bool isPrimary = false;
        bool hasAddress = false;
        double traffic = 0;  ///< bytes per second, both ways
        std::uint32_t nameRank = 0;
        std::size_t row = 0;
    };

    Place placeOf(const NetworkInterfaceStats& row, std::size_t at,
                  const std::string* primaryName) const;
    static bool comesFirst(const Place& a, const Place& b);

    NameRanks ranks_;
    std::vector<Place> places_;                  // in the order of the last time
    std::vector<NetworkInterfaceStats> others_;  // takes the rows in order
};

}  // namespace vantor
