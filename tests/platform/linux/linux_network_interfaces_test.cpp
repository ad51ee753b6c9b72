#include "platform/linux/linux_network_interfaces.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <net/if.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include "platform/interface_message.h"

namespace vantor::linux_network_interfaces_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Family = NetworkInterfaces::Family;

class FakeLinks : public LinkSource {
  public:
    bool links(std::vector<Link>& list) override {
        ++linkDumps;
        if (linksFail) return false;
        list = theLinks;
        return true;
    }
    bool addresses(std::vector<Address>& list) override {
        ++addressDumps;
        if (addressesFail) return false;
        list = theAddresses;
        return true;
    }

    void add(const std::string& name, std::uint32_t index, std::uint64_t received = 0,
             std::uint64_t sent = 0) {
        theLinks.push_back({index, IFF_UP | IFF_RUNNING, received, sent, true, name});
    }
    void addAddress(std::uint32_t index, const char* text) {
        Address address;
        address.index = index;
        address.isIPv6 = std::strchr(text, ':') != nullptr;
        ASSERT_EQ(::inet_pton(address.isIPv6 ? AF_INET6 : AF_INET, text, address.bytes.data()), 1);
        theAddresses.push_back(address);
    }

    std::vector<Link> theLinks;
    std::vector<Address> theAddresses;
    bool linksFail = false;
    bool addressesFail = false;
    int linkDumps = 0;
    int addressDumps = 0;
};

struct Message {
    std::string name;
    std::uint64_t received = 0;
    std::uint64_t sent = 0;

    bool operator==(const Message&) const = default;
    friend void PrintTo(const Message& m, std::ostream* out) {
        *out << m.name << ' ' << m.received << ' ' << m.sent;
    }
};

class LinuxNetworkInterfacesTest : public testing::Test {
  protected:
    std::size_t askSize() {
        std::size_t size = 99;
        EXPECT_EQ(interfaces.sysctl(interface_message::path, {}, size), 0);
        return size;
    }

    std::string nameOf(std::uint32_t index) {
        std::array<char, 16> name{};
        return interfaces.indexToName(index, name) ? std::string(name.data()) : "(none)";
    }

    /// The list in a buffer of that size, taken apart.
    std::vector<Message> list(std::size_t bufferSize) {
        std::vector<std::byte> buffer(bufferSize, std::byte{0xEE});
        std::size_t size = bufferSize;
        EXPECT_EQ(interfaces.sysctl(interface_message::path, buffer, size), 0);
        EXPECT_LE(size, bufferSize);
        std::vector<Message> messages;
        for (std::span<const std::byte> rest = std::span(buffer).first(size); !rest.empty();
             rest = rest.subspan(160)) {
            EXPECT_EQ(readLittleEndian<std::uint16_t>(rest, 0), 160);
            EXPECT_EQ(std::to_integer<int>(rest[2]), 5);
            EXPECT_EQ(std::to_integer<int>(rest[3]), 18);
            messages.push_back({nameOf(readLittleEndian<std::uint16_t>(rest, 12)),
                                readLittleEndian<std::uint64_t>(rest, 96),
                                readLittleEndian<std::uint64_t>(rest, 104)});
        }
        return messages;
    }

    /// The list of addresses as "name family address".
    std::vector<std::string> addresses() {
        const auto entries = interfaces.getifaddrs();
        EXPECT_TRUE(entries);
        if (!entries) return {};
        std::vector<std::string> lines;
        for (const auto& entry : *entries) {
            std::string line = entry.name;
            std::array<char, 100> text{};
            line += entry.family == Family::link   ? " link"
                    : entry.family == Family::ipv4 ? " ipv4 "
                                                   : " ipv6 ";
            if (interfaces.numericHost(entry, text)) line += text.data();
            lines.push_back(line);
        }
        interfaces.freeifaddrs();
        return lines;
    }

    std::shared_ptr<FakeLinks> links = std::make_shared<FakeLinks>();
    LinuxNetworkInterfaces interfaces{links};
};

TEST_F(LinuxNetworkInterfacesTest, GivesOneMessagePerLink) {
    links->add("lo", 1, 10, 10);
    links->add("eth0", 4, 0x1122334455667788, 7);
    EXPECT_EQ(askSize(), 320u);
    EXPECT_THAT(list(320),
                ElementsAre(Message{"lo", 10, 10}, Message{"eth0", 0x1122334455667788, 7}));
}

TEST_F(LinuxNetworkInterfacesTest, KnowsNoOtherPath) {
    std::size_t size = 0;
    const std::array other{4, 17, 0, 0, 3, 0};
    EXPECT_EQ(interfaces.sysctl(other, {}, size), ENOENT);
    EXPECT_EQ(interfaces.sysctl(std::span(interface_message::path).first(5), {}, size), ENOENT);
    EXPECT_EQ(links->linkDumps, 0);
}

TEST_F(LinuxNetworkInterfacesTest, ALinkWithoutCountersHasNoMessage) {
    links->add("lo", 1);
    links->add("odd", 2);
    links->theLinks[1].hasCounters = false;
    EXPECT_EQ(askSize(), 160u);
    EXPECT_THAT(list(160), ElementsAre(Message{"lo", 0, 0}));
    EXPECT_THAT(addresses(), ElementsAre("lo link", "odd link"));
}

// A machine that starts containers all day gets there within weeks.
TEST_F(LinuxNetworkInterfacesTest, ALinkWhoseNumberIsPast16BitsHasItsMessageToo) {
    links->add("eth0", 2, 1, 1);
    links->add("veth1", 70000, 5, 6);
    links->add("veth2", 2'000'000'000, 7, 8);
    links->addAddress(70000, "10.0.0.1");
    askSize();
    EXPECT_THAT(list(480),
                ElementsAre(Message{"eth0", 1, 1}, Message{"veth1", 5, 6}, Message{"veth2", 7, 8}));
    EXPECT_THAT(addresses(),
                ElementsAre("eth0 link", "veth1 link", "veth2 link", "veth1 ipv4 10.0.0.1"));
}

TEST_F(LinuxNetworkInterfacesTest, TheListIsOfTheMomentOfTheQuestionForItsSize) {
    links->add("eth0", 2, 100, 0);
    askSize();
    links->theLinks[0].receivedBytes = 200;
    EXPECT_THAT(list(160), ElementsAre(Message{"eth0", 100, 0}));
    EXPECT_EQ(links->linkDumps, 1);
}

TEST_F(LinuxNetworkInterfacesTest, AListWithoutAQuestionBeforeItIsFresh) {
    links->add("eth0", 2, 100, 0);
    EXPECT_THAT(list(160), ElementsAre(Message{"eth0", 100, 0}));
    links->theLinks[0].receivedBytes = 200;
    EXPECT_THAT(list(160), ElementsAre(Message{"eth0", 200, 0}));
    EXPECT_EQ(links->linkDumps, 2);
}

TEST_F(LinuxNetworkInterfacesTest, TooSmallABufferIsRefused) {
    links->add("eth0", 2);
    links->add("eth1", 3);
    askSize();
    std::vector<std::byte> buffer(319);
    std::size_t size = buffer.size();
    EXPECT_EQ(interfaces.sysctl(interface_message::path, buffer, size), ENOMEM);
    EXPECT_EQ(askSize(), 320u);
}

TEST_F(LinuxNetworkInterfacesTest, FailsWhenTheKernelDoesNotAnswer) {
    links->add("eth0", 2);
    links->linksFail = true;
    std::size_t size = 0;
    std::vector<std::byte> buffer(160);
    EXPECT_EQ(interfaces.sysctl(interface_message::path, {}, size), EIO);
    EXPECT_EQ(interfaces.sysctl(interface_message::path, buffer, size), EIO);
    EXPECT_EQ(interfaces.getifaddrs(), std::nullopt);
    EXPECT_EQ(nameOf(2), "(none)");
    links->linksFail = false;
    EXPECT_EQ(askSize(), 160u);
}

TEST_F(LinuxNetworkInterfacesTest, OnePassTakesOneDumpOfEach) {
    links->add("eth0", 2);
    for (int pass = 1; pass <= 3; ++pass) {
        askSize();
        list(160);
        addresses();
        EXPECT_EQ(links->linkDumps, pass);
        EXPECT_EQ(links->addressDumps, pass);
    }
}

TEST_F(LinuxNetworkInterfacesTest, ASecondListOfAddressesIsFresh) {
    links->add("eth0", 2);
    askSize();
    addresses();
    links->theLinks[0].name = "lan0";
    EXPECT_THAT(addresses(), ElementsAre("lan0 link"));
}

TEST_F(LinuxNetworkInterfacesTest, EveryEntryCarriesItsLinksNameAndFlags) {
    links->add("eth0", 2);
    links->add("wg0", 5);
    links->theLinks[1].flags = IFF_UP | IFF_POINTOPOINT;
    links->addAddress(2, "192.0.2.2");
    links->addAddress(5, "10.9.0.1");
    links->addAddress(2, "2001:db8::1");
    EXPECT_THAT(addresses(), ElementsAre("eth0 link", "wg0 link", "eth0 ipv4 192.0.2.2",
                                         "wg0 ipv4 10.9.0.1", "eth0 ipv6 2001:db8::1"));
    const auto entries = interfaces.getifaddrs();
    ASSERT_EQ(entries->size(), 5u);
    EXPECT_EQ((*entries)[0].flags, NetworkInterfaces::up | NetworkInterfaces::running);
    EXPECT_EQ((*entries)[3].flags, NetworkInterfaces::up | NetworkInterfaces::pointToPoint);
    EXPECT_EQ((*entries)[0].linkData, std::nullopt);
}

TEST_F(LinuxNetworkInterfacesTest, LinkLocalIPv6AddressesCarryTheirScope) {
    links->add("eth0", 2);
    links->addAddress(2, "fe80::1");
    links->addAddress(2, "febf::1");
    links->addAddress(2, "fec0::1");
    links->addAddress(2, "169.254.1.1");
    EXPECT_THAT(addresses(),
                ElementsAre("eth0 link", "eth0 ipv6 fe80::1%eth0", "eth0 ipv6 febf::1%eth0",
                            "eth0 ipv6 fec0::1", "eth0 ipv4 169.254.1.1"));
}

TEST_F(LinuxNetworkInterfacesTest, AnAddressOfALinkThatCameSinceIsLeftOut) {
    links->add("eth0", 2);
    askSize();
    links->add("eth1", 3);
    links->addAddress(3, "10.0.0.1");
    EXPECT_THAT(addresses(), ElementsAre("eth0 link"));
}

TEST_F(LinuxNetworkInterfacesTest, ALinkThatVanishesOrIsRenamedDuringAPassStaysWholeInIt) {
    links->add("eth0", 2, 10, 20);
    links->add("eth1", 3, 30, 40);
    links->addAddress(3, "10.0.0.1");
    askSize();
    links->theLinks = {{2, 0, 99, 99, true, "eth1"}};
    EXPECT_THAT(list(320), ElementsAre(Message{"eth0", 10, 20}, Message{"eth1", 30, 40}));
    EXPECT_THAT(addresses(), ElementsAre("eth0 link", "eth1 link", "eth1 ipv4 10.0.0.1"));
}

TEST_F(LinuxNetworkInterfacesTest, FailsWhenTheAddressesCannotBeHad) {
    links->add("eth0", 2);
    links->addressesFail = true;
    EXPECT_EQ(interfaces.getifaddrs(), std::nullopt);
}

TEST_F(LinuxNetworkInterfacesTest, TextsThatDoNotFitAreNoAnswer) {
    links->add("fifteen-letters", 2);
    links->addAddress(2, "fe80::1");
    askSize();
    std::array<char, 15> shortName{};
    EXPECT_FALSE(interfaces.indexToName(2, shortName));
    EXPECT_EQ(nameOf(2), "fifteen-letters");
    const auto entries = interfaces.getifaddrs();
    const auto formats = [&](std::size_t room) {
        std::vector<char> text(room);
        return interfaces.numericHost((*entries)[1], text);
    };
    const std::size_t needed = std::strlen("fe80::1%fifteen-letters") + 1;
    EXPECT_TRUE(formats(needed));
    for (std::size_t room = 0; room < needed; ++room)
        EXPECT_FALSE(formats(room)) << room;
    std::array<char, 100> text{};
    EXPECT_FALSE(interfaces.numericHost((*entries)[0], text)) << "a link has no address";
}

}  // namespace
}  // namespace vantor::linux_network_interfaces_test
