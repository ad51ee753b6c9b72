#include "platform/linux/network/link_source.h"

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/linux/network/netlink_messages.h"

namespace vantor {

namespace {

constexpr std::size_t longestLinkName = 15;

struct LinkRequest {
    nlmsghdr header{};
    ifinfomsg body{};
    rtattr attribute{};
    std::uint32_t mask = 0;
};
struct CountersRequest {
    nlmsghdr header{};
    if_stats_msg body{};
};
struct AddressRequest {
    nlmsghdr header{};
    ifaddrmsg body{};
};

/// Not the per-protocol statistics, which the kernel would add up over all processors for nothing;
/// the link's own counters come all the same.
LinkRequest linkRequest() {
    LinkRequest request;
    request.header.nlmsg_type = RTM_GETLINK;
    request.body.ifi_family = AF_UNSPEC;
    request.attribute.rta_len = sizeof request.attribute + sizeof request.mask;
    request.attribute.rta_type = IFLA_EXT_MASK;
    request.mask = RTEXT_FILTER_SKIP_STATS;
    return request;
}

CountersRequest countersRequest() {
    CountersRequest request;
    request.header.nlmsg_type = RTM_GETSTATS;
    request.body.filter_mask = IFLA_STATS_FILTER_BIT(IFLA_STATS_LINK_64);
    return request;
}

AddressRequest addressRequest() {
    AddressRequest request;
    request.header.nlmsg_type = RTM_GETADDR;
    request.body.ifa_family = AF_UNSPEC;
    return request;
}

void readName(NetlinkBytes value, std::string& name) {
    const auto end = std::find(value.begin(), value.end(), std::byte{0});
    const auto length = static_cast<std::size_t>(end - value.begin());
    if (length > longestLinkName) return;
    name.resize(length);
    std::memcpy(name.data(), value.data(), length);
}

/// Kernels append fields to the statistics; the byte counts have always been the third and fourth.
template <class Counter>
bool readCounters(NetlinkBytes value, LinkSource::Link& link) {
    const auto received = readNetlink<Counter>(value, 2 * sizeof(Counter));
    const auto sent = readNetlink<Counter>(value, 3 * sizeof(Counter));
    if (!received || !sent) return false;
    link.receivedBytes = *received;
    link.sentBytes = *sent;
    link.hasCounters = true;
    return true;
}

struct LinkReceiver : NetlinkDump::Receiver {
    explicit LinkReceiver(std::vector<LinkSource::Link>& l) : list(l) {}

    void restart() override { list.clear(); }
    bool take(std::uint16_t type, std::span<const std::byte> payload) override {
        if (type != RTM_NEWLINK) return true;
        if (!parseLink(payload, list.emplace_back())) return false;
        if (list.back().name.empty()) list.pop_back();
        return true;
    }

    std::vector<LinkSource::Link>& list;
};

struct AddressReceiver : NetlinkDump::Receiver {
    explicit AddressReceiver(std::vector<LinkSource::Address>& l) : list(l) {}

    void restart() override { list.clear(); }
    bool take(std::uint16_t type, std::span<const std::byte> payload) override {
        if (type != RTM_NEWADDR) return true;
        const AddressVerdict verdict = parseAddress(payload, list.emplace_back());
        if (verdict != AddressVerdict::address) list.pop_back();
        return verdict != AddressVerdict::malformed;
    }

    std::vector<LinkSource::Address>& list;
};

/// Puts counters to links that are known. The kernel lists both in one order, so that a link is
/// found behind the one before.
struct CountersReceiver : NetlinkDump::Receiver {
    explicit CountersReceiver(std::span<LinkSource::Link> l) : list(l) {}

    void restart() override {
        next = 0;
        found = 0;
        isOther = false;
    }
    bool take(std::uint16_t type, std::span<const std::byte> payload) override {
        if (type != RTM_NEWSTATS) return true;
        LinkSource::Link link;
        if (!parseLinkCounters(payload, link)) return false;
        const auto isIt = [&](const LinkSource::Link& known) { return known.index == link.index; };
        const auto start = list.begin() + static_cast<std::ptrdiff_t>(next);
        auto place = std::find_if(start, list.end(), isIt);
        bool isKnown = place != list.end();
        if (!isKnown) {
            place = std::find_if(list.begin(), start, isIt);
            isKnown = place != start;
        }
        isOther = isOther || !isKnown;
        if (!isKnown) return true;
        place->receivedBytes = link.receivedBytes;
        place->sentBytes = link.sentBytes;
        next = static_cast<std::size_t>(place - list.begin()) + 1;
        ++found;
        return true;
    }
    bool isWhole() const { return !isOther && found == list.size(); }

    std::span<LinkSource::Link> list;
    std::size_t next = 0;  // where the next one is expected
    std::size_t found = 0;
    bool isOther = false;  // one came that is not in the list
};

// A kernel that has answered none of so many questions is too old for them.
constexpr int fewRefusals = 3;

class LiveLinkSource : public LinkSource {
  public:
    LiveLinkSource(NetlinkDump::OpenSocket openSocket, LinkNotices::OpenSocket openNotices)
        : dump_(std::move(openSocket)), notices_(std::move(openNotices)) {}

    bool links(std::vector<Link>& list) override {
        LinkRequest request = linkRequest();
        LinkReceiver receiver(list);
        return dump_.dump(std::as_writable_bytes(std::span{&request, 1}), receiver);
    }
    bool addresses(std::vector<Address>& list) override {
        AddressRequest request = addressRequest();
        AddressReceiver receiver(list);
        return dump_.dump(std::as_writable_bytes(std::span{&request, 1}), receiver);
    }

    bool mayHaveChanged() override { return notices_.take(); }
    bool counters(std::span<Link> list) override {
        if (refusals_ >= fewRefusals) return false;
        CountersRequest request = countersRequest();
        CountersReceiver receiver(list);
        if (!dump_.dump(std::as_writable_bytes(std::span{&request, 1}), receiver)) {
            ++refusals_;
            return false;
        }
        refusals_ = 0;
        return receiver.isWhole();
    }

  private:
    NetlinkDump dump_;
    LinkNotices notices_;
    int refusals_ = 0;  // of counters, since they were last had
};

}  // namespace

bool parseLink(NetlinkBytes payload, LinkSource::Link& link) {
    const auto header = readNetlink<ifinfomsg>(payload);
    if (!header) return false;
    link.index = static_cast<std::uint32_t>(header->ifi_index);
    link.flags = header->ifi_flags;
    link.receivedBytes = 0;
    link.sentBytes = 0;
    link.hasCounters = false;
    link.name.clear();
    bool hasWideCounters = false;
    return forEachNetlinkAttribute(
        pastNetlink(payload, sizeof(ifinfomsg)), [&](int type, NetlinkBytes value) {
            if (type == IFLA_IFNAME) {
                readName(value, link.name);
            } else if (type == IFLA_STATS64) {
                hasWideCounters |= readCounters<std::uint64_t>(value, link);
            } else if (type == IFLA_STATS && !hasWideCounters) {
                readCounters<std::uint32_t>(value, link);
            }
        });
}

bool parseLinkCounters(NetlinkBytes payload, LinkSource::Link& link) {
    const auto header = readNetlink<if_stats_msg>(payload);
    if (!header) return false;
    link.index = header->ifindex;
    link.hasCounters = false;
    const bool isWhole = forEachNetlinkAttribute(pastNetlink(payload, sizeof(if_stats_msg)),
                                                 [&](int type, NetlinkBytes value) {
                                                     if (type == IFLA_STATS_LINK_64)
                                                         readCounters<std::uint64_t>(value, link);
                                                 });
    return isWhole && link.hasCounters;
}

AddressVerdict parseAddress(NetlinkBytes payload, LinkSource::Address& address) {
    const auto header = readNetlink<ifaddrmsg>(payload);
    if (!header) return AddressVerdict::malformed;
    address = {};
    address.index = header->ifa_index;
    address.isIPv6 = header->ifa_family == AF_INET6;
    const std::size_t size = address.isIPv6 ? 16 : 4;
    NetlinkBytes local;
    NetlinkBytes other;
    const bool isWhole = forEachNetlinkAttribute(pastNetlink(payload, sizeof(ifaddrmsg)),
                                                 [&](int type, NetlinkBytes value) {
                                                     if (value.size() != size) return;
                                                     if (type == IFA_LOCAL) local = value;
                                                     if (type == IFA_ADDRESS) other = value;
                                                 });
    if (!isWhole) return AddressVerdict::malformed;
    if (!address.isIPv6 && header->ifa_family != AF_INET) return AddressVerdict::notOurs;
    const NetlinkBytes bytes = local.empty() ? other : local;
    if (bytes.empty()) return AddressVerdict::notOurs;
    std::memcpy(address.bytes.data(), bytes.data(), bytes.size());
    return AddressVerdict::address;
}

std::shared_ptr<LinkSource> makeLiveLinkSource(NetlinkDump::OpenSocket openSocket,
                                               LinkNotices::OpenSocket openNotices) {
    return std::make_shared<LiveLinkSource>(std::move(openSocket), std::move(openNotices));
}

}  // namespace vantor
