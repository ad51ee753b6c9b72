#include "platform/linux/network/netlink_messages.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    using Step = NetlinkMessages::Step;
    constexpr std::size_t headerSize = 16;
    const auto datagram = std::as_bytes(std::span(data, size));
    NetlinkMessages messages(datagram);
    NetlinkMessage message;
    const std::byte* behindLast = datagram.data();
    Step step = messages.next(message);
    for (; step == Step::message; step = messages.next(message)) {
        const std::byte* const begin = message.payload.data();
        require(begin >= behindLast + headerSize && begin - datagram.data() >= 0);
        require((begin - datagram.data()) % 4 == 0);
        behindLast = begin + message.payload.size();
        require(behindLast <= datagram.data() + size);
    }
    require(messages.next(message) == step);
    if (step == Step::end) require(datagram.data() + size - behindLast <= 3);
    return 0;
}
