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

  private:
    /// What decides about a row, read once.
    struct Place {
        bool isPrimary;
        bool hasAddress;
        double traffic;  ///< bytes per second, both ways
        std::uint32_t nameRank;
        std::size_t row;
    };

    static bool comesFirst(const Place& a, const Place& b);

    NameRanks ranks_;
    std::vector<Place> places_;
    std::vector<NetworkInterfaceStats> others_;  // takes the rows in order
};

}  // namespace vantor
