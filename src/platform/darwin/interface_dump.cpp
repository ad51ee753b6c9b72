#include "platform/darwin/interface_dump.h"

#include "platform/darwin/interface_message.h"

namespace vantor {

InterfaceDump::Step InterfaceDump::next(Message& message) {
    namespace layout = interface_message;
    while (!rest_.empty()) {
        if (rest_.size() < layout::headerSize) return Step::malformed;
        const std::size_t length = readLittleEndian<std::uint16_t>(rest_, layout::lengthOffset);
        if (length < layout::headerSize || length > rest_.size()) return Step::malformed;
        const auto bytes = rest_.first(length);
        if (std::to_integer<std::uint8_t>(bytes[layout::versionOffset]) != layout::version ||
            std::to_integer<std::uint8_t>(bytes[layout::typeOffset]) != layout::type) {
            rest_ = rest_.subspan(length);
            continue;
        }
        if (length < layout::size) return Step::malformed;
        message.index = readLittleEndian<std::uint16_t>(bytes, layout::indexOffset);
        message.received = readLittleEndian<std::uint64_t>(bytes, layout::receivedOffset);
        message.sent = readLittleEndian<std::uint64_t>(bytes, layout::sentOffset);
        rest_ = rest_.subspan(length);
        return Step::message;
    }
    return Step::end;
}

}  // namespace vantor
