#include <gtest/gtest.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <system_error>

#include "platform/linux/linux_machine.h"
#include "probes/network_reader.h"

/// The interfaces of this machine, by the reader's pipeline and by others.
namespace vantor::live_network_test {
namespace {

using Lines = std::set<std::string>;

bool hasNumbers(const ifaddrs& entry) {
    return entry.ifa_addr &&
           (entry.ifa_addr->sa_family == AF_INET || entry.ifa_addr->sa_family == AF_INET6);
}

std::string flags(bool isUp, bool isRunning, bool isLoopback, bool isPointToPoint) {
    return std::string(isUp ? "up " : "") + (isRunning ? "running " : "") +
           (isLoopback ? "loopback " : "") + (isPointToPoint ? "tunnel" : "");
}

/// The addresses as the C library has them: "name address flags".
Lines addressesOfTheLibrary() {
    Lines lines;
    ifaddrs* list = nullptr;
    if (::getifaddrs(&list) != 0) return lines;
    for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
        if (!hasNumbers(*entry)) continue;
        std::array<char, NI_MAXHOST> text{};
        const socklen_t size =
            entry->ifa_addr->sa_family == AF_INET ? sizeof(sockaddr_in) : sizeof(sockaddr_in6);
        ::getnameinfo(entry->ifa_addr, size, text.data(), text.size(), nullptr, 0, NI_NUMERICHOST);
        const std::string name = entry->ifa_name;
        lines.insert(name.substr(0, name.find(':')) + ' ' + text.data() + ' ' +
                     flags((entry->ifa_flags & IFF_UP) != 0, (entry->ifa_flags & IFF_RUNNING) != 0,
                           (entry->ifa_flags & IFF_LOOPBACK) != 0,
                           (entry->ifa_flags & IFF_POINTOPOINT) != 0));
    }
    ::freeifaddrs(list);
    return lines;
}

Lines addressesOfThePlatform(NetworkInterfaces& interfaces) {
    Lines lines;
    NetworkInterfaces::List list;
    if (!interfaces.read(list)) return lines;
    for (const auto& record : list) {
        for (const auto& address : record.addresses)
            lines.insert(
                record.name + ' ' + address.text + ' ' +
                flags(record.isUp, record.isRunning, record.isLoopback, record.isPointToPoint));
    }
    return lines;
}

TEST(LiveNetwork, HasTheAddressesThatTheLibraryKnows) {
    LinuxMachine machine;
    for (int attempt = 0; attempt < 5; ++attempt) {
        const Lines before = addressesOfTheLibrary();
        const Lines ours = addressesOfThePlatform(machine.networkInterfaces());
        if (before != addressesOfTheLibrary()) continue;  // something changed meanwhile
        EXPECT_EQ(ours, before);
        return;
    }
    GTEST_SKIP() << "the addresses of this machine change all the time";
}

std::optional<std::uint64_t> statistic(const std::string& name, const char* which) {
    std::ifstream file("/sys/class/net/" + name + "/statistics/" + which);
    std::uint64_t value = 0;
    return file >> value ? std::optional(value) : std::nullopt;
}

TEST(LiveNetwork, HasTheCountersThatTheKernelsFilesShow) {
    const auto machine = std::make_shared<LinuxMachine>();
    NetworkReader reader(machine);
    reader.read(true, 1);
    std::set<std::string> names;
    std::error_code error;
    for (const auto& folder : std::filesystem::directory_iterator("/sys/class/net", error))
        names.insert(folder.path().filename());
    if (error) GTEST_SKIP() << "this machine has no /sys/class/net";
    std::map<std::string, std::array<std::uint64_t, 2>> before;
    for (const auto& name : names)
        before[name] = {statistic(name, "rx_bytes").value_or(0),
                        statistic(name, "tx_bytes").value_or(0)};
    const NetworkStats* const stats = reader.read(true, 2);
    if (!stats) GTEST_SKIP() << "this machine has no network whose counters can be read";
    int compared = 0;
    for (const auto& row : stats->interfaces) {
        const auto received = statistic(row.name, "rx_bytes");
        const auto sent = statistic(row.name, "tx_bytes");
        if (!before.contains(row.name) || !received || !sent) continue;
        ++compared;
        EXPECT_GE(row.receivedBytes, before[row.name][0]) << row.name;
        EXPECT_LE(row.receivedBytes, *received) << row.name;
        EXPECT_GE(row.sentBytes, before[row.name][1]) << row.name;
        EXPECT_LE(row.sentBytes, *sent) << row.name;
    }
    if (compared == 0) GTEST_SKIP() << "this machine has no interface that is up";
}

}  // namespace
}  // namespace vantor::live_network_test
