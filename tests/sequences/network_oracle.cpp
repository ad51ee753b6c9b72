#include "sequences/network_oracle.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "sequences/disagreement.h"

namespace vantor {

namespace {

constexpr double primaryLifetime = 5;    // seconds
constexpr double hostNameLifetime = 60;  // seconds

bool isLinkLocal(const std::string& address) {
    return address.starts_with("169.254.") || address.starts_with("fe8") ||
           address.starts_with("fe9") || address.starts_with("fea") || address.starts_with("feb");
}

/// The first one that reaches beyond its link, else the first one.
std::optional<std::string> chosen(const std::vector<std::string>& addresses) {
    for (const std::string& address : addresses) {
        if (!isLinkLocal(address)) return address;
    }
    return addresses.empty() ? std::nullopt : std::optional(addresses.front());
}

template <class List>
auto named(const List& list, const std::string& name) {
    return std::find_if(list.begin(), list.end(),
                        [&](const auto& each) { return each.name == name; });
}

void compareRow(Disagreement& disagreement, const NetworkInterfaceStats& actual,
                const NetworkInterfaceStats& expected) {
    const std::string& name = expected.name;
    disagreement.expectSame("name", actual.name, name, "a row");
    disagreement.expectSame("IPv4 address", actual.ipv4Address, expected.ipv4Address, name);
    disagreement.expectSame("IPv6 address", actual.ipv6Address, expected.ipv6Address, name);
    disagreement.expectSame("bytes received", actual.receivedBytes, expected.receivedBytes, name);
    disagreement.expectSame("bytes sent", actual.sentBytes, expected.sentBytes, name);
    disagreement.expectSame("being a tunnel", actual.isPointToPoint, expected.isPointToPoint, name);
}

}  // namespace

bool comesFirstForPeople(std::string_view a, std::string_view b) {
    const auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    while (!a.empty() && !b.empty()) {
        if (!isDigit(a.front()) || !isDigit(b.front())) {
            if (a.front() != b.front()) return a.front() < b.front();
            a.remove_prefix(1);
            b.remove_prefix(1);
            continue;
        }
        const auto numberOf = [&](std::string_view& text) {
            std::uint64_t number = 0;
            for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1))
                number = number * 10 + static_cast<std::uint64_t>(text.front() - '0');
            return number;
        };
        const std::uint64_t x = numberOf(a);
        const std::uint64_t y = numberOf(b);
        if (x != y) return x < y;
    }
    return a.size() < b.size();
}

void NetworkOracle::hear(Reading reading) {
    history_.push_back(std::move(reading));
}

/// The latest reading before the last one that was answered: who was not there then has no past.
const NetworkOracle::Reading* NetworkOracle::baseline() const {
    for (std::size_t place = history_.size() - 1; place > firstSinceReset_; --place) {
        if (history_[place - 1].isAnswered) return &history_[place - 1];
    }
    return nullptr;
}

void NetworkOracle::askForNames() {
    const Reading& now = history_.back();
    if (primaryAskedAt_ && now.uptime - *primaryAskedAt_ < primaryLifetime) return;
    primaryAskedAt_ = now.uptime;
    primary_ = now.primary;
}

/// Nothing is known of an interval across which the counters changed their source or, under the
/// same name, their interface. Of counters of which one went down, that one grew by nothing.
void NetworkOracle::measure(Row& row, const Interface& before, double elapsed) {
    const Interface& now = *row.interface;
    if (elapsed <= 0 || now.number != before.number) return;
    const bool receivedGrew = now.received >= before.received;
    const bool sentGrew = now.sent >= before.sent;
    const std::uint64_t received = receivedGrew ? now.received - before.received : 0;
    const std::uint64_t sent = sentGrew ? now.sent - before.sent : 0;
    row.download = static_cast<long double>(received) / elapsed;
    row.upload = static_cast<long double>(sent) / elapsed;
    row.traffic = static_cast<double>(received) / elapsed + static_cast<double>(sent) / elapsed;
    row.isMeasured = receivedGrew && sentGrew;
}

bool NetworkOracle::comesFirst(const Row& a, const Row& b) {
    if (a.isPrimary != b.isPrimary) return a.isPrimary;
    const bool hasAddress = a.ipv4 || a.ipv6;
    if (hasAddress != (b.ipv4 || b.ipv6)) return hasAddress;
    if (a.traffic != b.traffic) return a.traffic > b.traffic;
    return comesFirstForPeople(a.interface->name, b.interface->name);
}

std::vector<NetworkOracle::Row> NetworkOracle::rows() const {
    const Reading& now = history_.back();
    const Reading* const past = baseline();
    std::vector<Row> rows;
    for (const Interface& interface : now.interfaces) {
        if (interface.isPointToPoint && !now.includePointToPoint) continue;
        Row& row = rows.emplace_back();
        row.interface = &interface;
        row.ipv4 = chosen(interface.ipv4);
        row.ipv6 = chosen(interface.ipv6);
        row.isPrimary = primary_ == interface.name;
        if (!past) continue;
        const auto before = named(past->interfaces, interface.name);
        if (before != past->interfaces.end()) measure(row, *before, now.uptime - past->uptime);
    }
    std::sort(rows.begin(), rows.end(), comesFirst);
    return rows;
}

std::optional<std::string> NetworkOracle::judge(const NetworkStats* actual) {
    const Reading& now = history_.back();
    Disagreement disagreement;
    if (!now.isAnswered) {
        disagreement.expectSame("there is a record", actual != nullptr, false);
        return disagreement.text();
    }
    askForNames();
    const std::vector<Row> rows = this->rows();
    const bool isShown = rows.empty() || rows.front().isMeasured;
    disagreement.expectSame("there is a record", actual != nullptr, isShown);
    if (disagreement.text() || !actual) return disagreement.text();

    if (!hostNameAskedAt_ || now.uptime - *hostNameAskedAt_ >= hostNameLifetime) {
        hostNameAskedAt_ = now.uptime;
        hostName_ = now.hostName;
    }
    const Row none{};
    const Row& primary = rows.empty() ? none : rows.front();
    disagreement.expectSame("host name", actual->hostname, hostName_);
    disagreement.expectSame(
        "primary interface", actual->primaryInterfaceName,
        primary.interface ? std::optional(primary.interface->name) : std::nullopt);
    disagreement.expectSame("primary IPv4 address", actual->primaryIPv4Address, primary.ipv4);
    disagreement.expectSame("primary IPv6 address", actual->primaryIPv6Address, primary.ipv6);
    disagreement.expectClose("download", actual->downloadBytesPerSecond, primary.download);
    disagreement.expectClose("upload", actual->uploadBytesPerSecond, primary.upload);
    disagreement.expectSame("rows", actual->interfaces.size(), rows.size());
    for (std::size_t i = 0; i < std::min(rows.size(), actual->interfaces.size()); ++i) {
        const Row& row = rows[i];
        const NetworkInterfaceStats& shown = actual->interfaces[i];
        const Interface& true_ = *row.interface;
        compareRow(disagreement, shown,
                   {true_.name, row.ipv4, row.ipv6, true_.received, true_.sent, 0, 0,
                    true_.isPointToPoint});
        disagreement.expectClose("download", shown.downloadBytesPerSecond, row.download,
                                 true_.name);
        disagreement.expectClose("upload", shown.uploadBytesPerSecond, row.upload, true_.name);
    }
    return disagreement.text();
}

}  // namespace vantor
