#include "probes/network_reader.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/native_machine.h"
#include "probes/kernel_text.h"

namespace vantor {

namespace {

constexpr double hostnameLifetime = 60.0;         // seconds of uptime
constexpr double primaryInterfaceLifetime = 5.0;  // likewise

double rate(std::uint64_t delta, double elapsed) {
    if (elapsed <= 0) return 0;
    const double bytesPerSecond = static_cast<double>(delta) / elapsed;
    return std::isfinite(bytesPerSecond) ? bytesPerSecond : 0;
}

/// What is there already has been made UTF-8.
void assignName(std::string& to, std::string_view name) {
    if (to == name) return;
    to = name;
    makeUTF8(to);
}

void assignAddress(std::optional<std::string>& to, const std::string& address) {
    if (address.empty()) {
        to.reset();
    } else {
        if (!to) to.emplace();
        assignName(*to, address);  // a scope is an interface's name
    }
}

}  // namespace

NetworkReader::NetworkReader(std::shared_ptr<Machine> machine)
    : machine_(std::move(machine)), order_(makeNativeNameOrder()) {}

const NetworkStats* NetworkReader::read(bool includePointToPointInterfaces, double uptime) {
    if (!machine_->networkInterfaces().read(interfaces_)) return nullptr;
    accumulators_.gather(interfaces_);
    previousSamples_.eraseIf(
        [this](const std::string& name) { return !accumulators_.map().find(name); });
    makeRows(includePointToPointInterfaces, uptime);
    const std::string* const primaryName = primaryInterfaceName(uptime);
    order_.sort(stats_.interfaces, primaryName);
    const NetworkInterfaceStats* const primary = primaryRow(primaryName);
    if (primary && !measuredRateInterfaceBuffer_.find(primary->name)) return nullptr;
    stats_.hostname = hostName(uptime);
    if (primary) {
        stats_.primaryInterfaceName = primary->name;
        stats_.primaryIPv4Address = primary->ipv4Address;
        stats_.primaryIPv6Address = primary->ipv6Address;
    } else {
        stats_.primaryInterfaceName.reset();
        stats_.primaryIPv4Address.reset();
        stats_.primaryIPv6Address.reset();
    }
    stats_.downloadBytesPerSecond = primary ? primary->downloadBytesPerSecond : 0;
    stats_.uploadBytesPerSecond = primary ? primary->uploadBytesPerSecond : 0;
    return &stats_;
}

/// An interface whose received bytes started again still shows what it has sent, but that is no
/// measurement to go by.
NetworkReader::Deltas NetworkReader::deltas(const CounterSample& previous,
                                            const InterfaceAccumulator& now, double uptime) {
    Deltas deltas;
    deltas.elapsed = std::max(0.0, uptime - previous.uptime);
    // Counters of another source or, when names were exchanged, of another interface: between the
    // two there is no difference to speak of.
    if (previous.uses64BitCounters != now.uses64BitCounters || previous.index != now.index) {
        return deltas;
    }
    const bool receivedGrew = now.received >= previous.received;
    const bool sentGrew = now.sent >= previous.sent;
    if (receivedGrew) deltas.received = now.received - previous.received;
    if (sentGrew) deltas.sent = now.sent - previous.sent;
    deltas.isMeasured = receivedGrew && sentGrew && deltas.elapsed > 0;
    return deltas;
}

NetworkReader::Deltas NetworkReader::replaceBaseline(std::string_view name,
                                                     const InterfaceAccumulator& now,
                                                     double uptime) {
    const auto [sample, isNew] = previousSamples_.hold(name);
    const Deltas result = isNew ? Deltas{} : deltas(sample, now, uptime);
    sample = {now.received, now.sent, uptime, now.uses64BitCounters, now.index};
    return result;
}

/// The rows of the last record are taken up again: back in their places they meet their own
/// interfaces, whose texts fit into their storage.
void NetworkReader::makeRows(bool includePointToPointInterfaces, double uptime) {
    measuredRateInterfaceBuffer_.clear();
    auto& rows = stats_.interfaces;
    order_.undo(rows);
    std::size_t count = 0;
    accumulators_.map().forEach([&](const std::string& name, const InterfaceAccumulator& now) {
        const Deltas deltas = replaceBaseline(name, now, uptime);
        if (now.isPointToPoint && !includePointToPointInterfaces) return;
        if (count == rows.size()) rows.emplace_back();
        NetworkInterfaceStats& row = rows[count++];
        assignName(row.name, name);
        if (deltas.isMeasured) measuredRateInterfaceBuffer_.hold(row.name);
        assignAddress(row.ipv4Address, now.ipv4Address);
        assignAddress(row.ipv6Address, now.ipv6Address);
        row.receivedBytes = now.received;
        row.sentBytes = now.sent;
        row.downloadBytesPerSecond = rate(deltas.received, deltas.elapsed);
        row.uploadBytesPerSecond = rate(deltas.sent, deltas.elapsed);
        row.isPointToPoint = now.isPointToPoint;
    });
    rows.resize(count);
}

const std::string* NetworkReader::primaryInterfaceName(double uptime) {
    auto& cached = cachedPrimaryInterfaceName_;
    if (!(uptime - lastPrimaryInterfaceLookupUptime_ < primaryInterfaceLifetime)) {
        lastPrimaryInterfaceLookupUptime_ = uptime;
        const auto found = machine_->primaryInterface().name();
        if (found) {
            if (!cached) cached.emplace();
            assignName(*cached, *found);
        } else {
            cached.reset();
        }
    }
    return cached ? &*cached : nullptr;
}

const NetworkInterfaceStats* NetworkReader::primaryRow(const std::string* name) const {
    const auto& rows = stats_.interfaces;
    if (rows.empty()) return nullptr;
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [name](const auto& row) { return name && row.name == *name; });
    return found == rows.end() ? &rows.front() : &*found;
}

const std::string& NetworkReader::hostName(double uptime) {
    if (!cachedHostname_ || uptime - lastHostnameLookupUptime_ >= hostnameLifetime) {
        if (!cachedHostname_) cachedHostname_.emplace();
        machine_->processInfo().hostName(*cachedHostname_);
        makeUTF8(*cachedHostname_);
        lastHostnameLookupUptime_ = uptime;
    }
    return *cachedHostname_;
}

}  // namespace vantor
