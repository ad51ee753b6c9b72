#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/darwin/interface_calls.h"

namespace vantor {

/// Interfaces by script. The members are the script: set them before the call that is to see them;
/// nothing here locks.
class SimulatedInterfaceCalls : public InterfaceCalls {
  public:
    struct Address {
        Family family = Family::ipv4;
        std::string text;           ///< what the address looks like, scope included
        bool isFormattable = true;  ///< false: numericHost fails
    };
    struct Interface {
        std::string name;
        std::uint16_t index = 1;
        std::uint32_t flags = up | running;
        std::uint64_t received = 0;
        std::uint64_t sent = 0;
        std::vector<Address> addresses;
        bool hasMessage = true;            ///< false: it is not in the list of 64-bit counters
        bool hasName = true;               ///< false: its index has no name any more
        bool isListed = true;              ///< false: getifaddrs does not know it
        bool hasLinkEntry = true;          ///< false: only its addresses are listed
        std::optional<LinkData> linkData;  ///< 32-bit counters in its link entry
    };

    std::vector<Interface> interfaces;

    /// Added to every interface's counters after each list of counters, so that traffic seems to
    /// flow.
    std::uint64_t receivedGrowth = 0;
    std::uint64_t sentGrowth = 0;

    /// Bytes of messages of another type before those of the interfaces; 0 or at least 4.
    std::size_t foreignBytes = 0;
    /// How many are added to them after each of the next questions for the size.
    std::deque<std::size_t> growthAfterSizeQuestions;

    std::optional<std::vector<std::byte>> rawList;  ///< instead of the list that would be true
    std::optional<std::size_t> claimedLength;       ///< instead of the length that is handed over

    /// The next calls answer these errno values in turn (0 = as usual).
    std::deque<int> sizeErrors;
    std::deque<int> listErrors;
    std::deque<std::size_t> claimedSizes;  ///< the next answers to the question for the size

    bool addressListFails = false;
    bool addressListIsEmpty = false;
    std::vector<Entry> extraEntries;  ///< in front of the list of addresses

    /// Called with the size of each buffer that is offered; 0 asks for the size needed.
    std::function<void(std::size_t)> onSysctl;

    int addressListsOutstanding = 0;

    Interface& named(const std::string& name);  ///< the interface of that name, made if need be

    int sysctl(std::span<const int> path, std::span<std::byte> buffer, std::size_t& size) override;
    bool indexToName(std::uint32_t index, std::span<char> name) override;
    std::optional<std::span<const Entry>> getifaddrs() override;
    void freeifaddrs() override;
    bool numericHost(const Entry& entry, std::span<char> text) override;

  private:
    int answerSize(std::size_t& size);
    std::size_t listSize() const;
    void writeList(std::span<std::byte> buffer) const;
    void list(const Interface& interface);

    std::vector<Entry> entries_;
    std::vector<const Address*> listed_;  ///< an entry's address identifies it
};

}  // namespace vantor
