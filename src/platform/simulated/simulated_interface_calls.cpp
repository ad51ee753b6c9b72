#include "platform/simulated/simulated_interface_calls.h"

#include <algorithm>
#include <cerrno>

#include "platform/darwin/interface_message.h"

namespace vantor {

namespace {

constexpr std::size_t maxForeignMessageSize = 65532;
constexpr std::byte foreignType{99};

template <class T>
std::optional<T> takeNext(std::deque<T>& script) {
    if (script.empty()) return std::nullopt;
    const T next = script.front();
    script.pop_front();
    return next;
}

bool copyText(const std::string& text, std::span<char> to) {
    if (text.size() >= to.size()) return false;
    std::copy(text.begin(), text.end(), to.begin());
    to[text.size()] = '\0';
    return true;
}

/// Fills all of `bytes` with messages that nobody reads.
void writeForeignMessages(std::span<std::byte> bytes) {
    namespace message = interface_message;
    while (!bytes.empty()) {
        std::size_t length = std::min(bytes.size(), maxForeignMessageSize);
        // What is left over must still hold a header.
        if (bytes.size() - length > 0 && bytes.size() - length < message::headerSize) length -= 4;
        writeLittleEndian(bytes, message::lengthOffset, static_cast<std::uint16_t>(length));
        writeLittleEndian(bytes, message::versionOffset, message::version);
        bytes[message::typeOffset] = foreignType;
        bytes = bytes.subspan(length);
    }
}

}  // namespace

SimulatedInterfaceCalls::Interface& SimulatedInterfaceCalls::named(const std::string& name) {
    const auto found = std::find_if(interfaces.begin(), interfaces.end(),
                                    [&](const Interface& i) { return i.name == name; });
    if (found != interfaces.end()) return *found;
    Interface made;
    made.name = name;
    made.index = static_cast<std::uint16_t>(interfaces.size() + 1);
    return interfaces.emplace_back(std::move(made));
}

std::size_t SimulatedInterfaceCalls::listSize() const {
    if (rawList) return rawList->size();
    const auto count = std::count_if(interfaces.begin(), interfaces.end(),
                                     [](const Interface& i) { return i.hasMessage; });
    return foreignBytes + static_cast<std::size_t>(count) * interface_message::size;
}

void SimulatedInterfaceCalls::writeList(std::span<std::byte> buffer) const {
    if (rawList) {
        std::copy(rawList->begin(), rawList->end(), buffer.begin());
        return;
    }
    writeForeignMessages(buffer.first(foreignBytes));
    buffer = buffer.subspan(foreignBytes);
    for (const Interface& i : interfaces) {
        if (!i.hasMessage) continue;
        writeInterfaceMessage(buffer, i.index, i.received, i.sent);
        buffer = buffer.subspan(interface_message::size);
    }
}

int SimulatedInterfaceCalls::answerSize(std::size_t& size) {
    if (const int error = takeNext(sizeErrors).value_or(0)) return error;
    size = listSize();
    if (const auto claimed = takeNext(claimedSizes)) size = *claimed;
    foreignBytes += takeNext(growthAfterSizeQuestions).value_or(0);
    return 0;
}

int SimulatedInterfaceCalls::sysctl(std::span<const int> path, std::span<std::byte> buffer,
                                    std::size_t& size) {
    if (!std::ranges::equal(path, interface_message::path)) return ENOENT;
    if (onSysctl) onSysctl(buffer.size());
    if (buffer.empty()) return answerSize(size);
    if (const int error = takeNext(listErrors).value_or(0)) return error;
    size = listSize();
    if (buffer.size() < size) return ENOMEM;
    writeList(buffer);
    if (claimedLength) size = *claimedLength;
    for (Interface& i : interfaces) {
        i.received += receivedGrowth;
        i.sent += sentGrowth;
    }
    return 0;
}

bool SimulatedInterfaceCalls::indexToName(std::uint32_t index, std::span<char> name) {
    const auto found = std::find_if(interfaces.begin(), interfaces.end(),
                                    [&](const Interface& i) { return i.index == index; });
    return found != interfaces.end() && found->hasName && copyText(found->name, name);
}

std::optional<std::span<const InterfaceCalls::Entry>> SimulatedInterfaceCalls::getifaddrs() {
    if (addressListFails) return std::nullopt;
    ++addressListsOutstanding;
    entries_.assign(extraEntries.begin(), extraEntries.end());
    listed_.clear();
    if (addressListIsEmpty) entries_.clear();
    for (const Interface& i : interfaces) {
        if (i.isListed && !addressListIsEmpty) list(i);
    }
    return entries_;
}

void SimulatedInterfaceCalls::list(const Interface& interface) {
    Entry entry;
    entry.name = interface.name.c_str();
    entry.flags = interface.flags;
    if (interface.hasLinkEntry) {
        entry.family = Family::link;
        entry.linkData = interface.linkData;
        entries_.push_back(entry);
        entry.linkData.reset();
    }
    for (const Address& address : interface.addresses) {
        entry.family = address.family;
        const auto place = static_cast<std::uint16_t>(listed_.size());
        entry.address = {static_cast<std::uint8_t>(place >> 8), static_cast<std::uint8_t>(place)};
        listed_.push_back(&address);
        entries_.push_back(entry);
    }
}

void SimulatedInterfaceCalls::freeifaddrs() {
    --addressListsOutstanding;
}

bool SimulatedInterfaceCalls::numericHost(const Entry& entry, std::span<char> text) {
    const std::size_t place = std::size_t{entry.address[0]} << 8 | entry.address[1];
    if (place >= listed_.size()) return false;
    const Address& address = *listed_[place];
    return address.isFormattable && copyText(address.text, text);
}

}  // namespace vantor
