#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/network_stats.h"

namespace vantor {

/// Works out rates and rows from everything that the kernel ever said.
class NetworkOracle {
  public:
    /// One interface that is up, running and not the loopback.
    struct Interface {
        std::string name;
        std::optional<std::uint16_t> number;  ///< known where the counters have 64 bits
        std::uint64_t received = 0;
        std::uint64_t sent = 0;
        bool isPointToPoint = false;
        std::vector<std::string> ipv4;  ///< in the order of the list
        std::vector<std::string> ipv6;
    };

    struct Reading {
        bool isAnswered = false;  ///< whether both lists could be had
        double uptime = 0;
        bool includePointToPoint = false;
        std::vector<Interface> interfaces;
        std::optional<std::string> primary;  ///< what the system says at that moment
        std::string hostName;                ///< likewise
    };

    /// The next reading has nothing before it to be compared with.
    void forget() { firstSinceReset_ = history_.size(); }
    void hear(Reading reading);

    /// What is wrong with the reader's answer to the last reading.
    std::optional<std::string> judge(const NetworkStats* actual);

  private:
    struct Row {
        const Interface* interface;
        std::optional<std::string> ipv4;
        std::optional<std::string> ipv6;
        long double download = 0;  ///< bytes per second
        long double upload = 0;
        double traffic = 0;  ///< both, as rounded as the record's own figures
        bool isMeasured = false;
        bool isPrimary = false;
    };

    const Reading* baseline() const;
    void askForNames();
    std::vector<Row> rows() const;
    static void measure(Row& row, const Interface& before, double elapsed);
    static bool comesFirst(const Row& a, const Row& b);

    std::vector<Reading> history_;
    std::size_t firstSinceReset_ = 0;
    std::optional<double> primaryAskedAt_;
    std::optional<std::string> primary_;
    std::optional<double> hostNameAskedAt_;
    std::string hostName_;
};

/// Whether `a` comes before `b` for people, who count: "en9" before "en10". Small letters, digits
/// and hyphens only.
bool comesFirstForPeople(std::string_view a, std::string_view b);

}  // namespace vantor
