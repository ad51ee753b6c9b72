#include "platform/darwin/interface_dump_reader.h"

#include <algorithm>
#include <cerrno>
#include <string_view>

#include "platform/darwin/interface_dump.h"
#include "platform/darwin/interface_message.h"

namespace vantor {

namespace {

constexpr std::size_t largestBuffer = std::size_t{16} * 1024 * 1024;
constexpr std::size_t trimmedBufferFloor = std::size_t{256} * 1024;
constexpr std::size_t interfaceDumpOversizeFactor = 4;
constexpr int oversizeSuccessLimit = 8;
constexpr int interfaceDumpRetries = 2;

std::optional<std::size_t> neededSize(InterfaceCalls& interfaces) {
    std::size_t size = 0;
    if (interfaces.sysctl(interface_message::path, {}, size) != 0) return std::nullopt;
    if (size == 0 || size > largestBuffer) return std::nullopt;
    return size;
}

}  // namespace

bool InterfaceDumpReader::read64BitInterfaceCounters(InterfaceCalls& interfaces) {
    if (readAndParse(interfaces)) return true;
    routeBufferOversizeSuccesses_ = 0;
    return false;
}

bool InterfaceDumpReader::readAndParse(InterfaceCalls& interfaces) {
    const auto length = fetch(interfaces);
    if (!length) return false;
    interfaceCounterBuffer_.clear();
    if (!parse64BitInterfaceCounters(interfaces, std::span(routeBuffer_).first(*length))) {
        interfaceCounterBuffer_.clear();
        return false;
    }
    trimRouteBufferIfPersistentlyOversized(*length);
    return true;
}

/// Interfaces may come between the question for the size and the answer: hence the
/// interfaceDumpRetries, each with at least twice the room.
std::optional<std::size_t> InterfaceDumpReader::fetch(InterfaceCalls& interfaces) {
    auto needed = neededSize(interfaces);
    if (!needed) return std::nullopt;
    for (int retriesLeft = interfaceDumpRetries;; --retriesLeft) {
        if (routeBuffer_.size() < *needed) routeBuffer_ = std::vector<std::byte>(*needed);
        std::size_t length = routeBuffer_.size();
        const int error = interfaces.sysctl(interface_message::path, routeBuffer_, length);
        if (error == 0 && length <= routeBuffer_.size()) return length;
        if (error != ENOMEM || retriesLeft == 0) return std::nullopt;
        needed = neededSize(interfaces);
        if (!needed) return std::nullopt;
        needed = std::min(std::max(2 * routeBuffer_.size(), *needed), largestBuffer);
        if (*needed <= routeBuffer_.size()) return std::nullopt;
    }
}

bool InterfaceDumpReader::parse64BitInterfaceCounters(InterfaceCalls& interfaces,
                                                      std::span<const std::byte> bytes) {
    InterfaceDump dump(bytes);
    InterfaceDump::Message message;
    for (;;) {
        const InterfaceDump::Step step = dump.next(message);
        if (step != InterfaceDump::Step::message) return step == InterfaceDump::Step::end;
        if (!interfaces.indexToName(message.index, interfaceNameBuffer_)) return false;
        const auto end = std::find(interfaceNameBuffer_.begin(), interfaceNameBuffer_.end(), '\0');
        const std::string_view name(interfaceNameBuffer_.begin(), end);
        interfaceCounterBuffer_.hold(name).value = {message.received, message.sent, message.index};
    }
}

void InterfaceDumpReader::trimRouteBufferIfPersistentlyOversized(std::size_t validLength) {
    const std::size_t enough =
        std::max(interfaceDumpOversizeFactor * validLength, trimmedBufferFloor);
    if (routeBuffer_.size() <= enough) {
        routeBufferOversizeSuccesses_ = 0;
        return;
    }
    if (++routeBufferOversizeSuccesses_ < oversizeSuccessLimit) return;
    routeBuffer_ =
        std::vector<std::byte>(std::clamp(2 * validLength, trimmedBufferFloor, largestBuffer));
    routeBufferOversizeSuccesses_ = 0;
}

}  // namespace vantor
