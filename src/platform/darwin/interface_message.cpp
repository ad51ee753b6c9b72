#include "platform/darwin/interface_message.h"

#include <algorithm>

namespace vantor {

void writeInterfaceMessage(std::span<std::byte> bytes, std::uint16_t index, std::uint64_t received,
                           std::uint64_t sent) {
    namespace message = interface_message;
    const auto whole = bytes.first(message::size);
    std::fill(whole.begin(), whole.end(), std::byte{0});
    writeLittleEndian(whole, message::lengthOffset, static_cast<std::uint16_t>(message::size));
    writeLittleEndian(whole, message::versionOffset, message::version);
    writeLittleEndian(whole, message::typeOffset, message::type);
    writeLittleEndian(whole, message::indexOffset, index);
    writeLittleEndian(whole, message::receivedOffset, received);
    writeLittleEndian(whole, message::sentOffset, sent);
}

}  // namespace vantor
