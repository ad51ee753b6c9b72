#include "platform/linux/network/link_source.h"

#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <utility>

#include "platform/linux/network/netlink_messages.h"

namespace vantor {

namespace {

struct LinkRequest {
    nlmsghdr header{};
    ifinfomsg body{};
    rtattr attribute{};
    std::uint32_t mask = 0;
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

AddressRequest addressRequest() {
    AddressRequest request;
    request.header.nlmsg_type = RTM_GETADDR;
    request.body.ifa_family = AF_UNSPEC;
    return request;
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

class LiveLinkSource : public LinkSource {
  public:
    explicit LiveLinkSource(NetlinkDump::OpenSocket openSocket) : dump_(std::move(openSocket)) {}

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

  private:
    NetlinkDump dump_;
};

}  // namespace

std::shared_ptr<LinkSource> makeLiveLinkSource(NetlinkDump::OpenSocket openSocket) {
    return std::make_shared<LiveLinkSource>(std::move(openSocket));
}

}  // namespace vantor
