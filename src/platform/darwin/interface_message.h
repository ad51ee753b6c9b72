#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vantor {

/// One message of the list of interfaces with their 64-bit counters (the if_msghdr2 of <net/if.h>
/// on macOS). Little-endian; every message of the list begins with its length, version and type,
/// and those of another version or type are skipped.
namespace interface_message {

inline constexpr std::size_t headerSize = 4;
inline constexpr std::size_t lengthOffset = 0;  ///< 16 bits, the whole message
inline constexpr std::size_t versionOffset = 2;
inline constexpr std::size_t typeOffset = 3;
inline constexpr std::uint8_t version = 5;
inline constexpr std::uint8_t type = 18;

inline constexpr std::size_t size = 160;  ///< at least; more may follow
inline constexpr std::size_t indexOffset = 12;
inline constexpr std::size_t receivedOffset = 96;  ///< 64 bits, as the sent ones
inline constexpr std::size_t sentOffset = 104;

inline constexpr int path[] = {4, 17, 0, 0, 6, 0};

}  // namespace interface_message

template <class T>
T readLittleEndian(std::span<const std::byte> bytes, std::size_t offset) {
    T value = 0;
    for (std::size_t i = sizeof value; i-- > 0;)
        value = static_cast<T>(value << 8 | std::to_integer<T>(bytes[offset + i]));
    return value;
}

template <class T>
void writeLittleEndian(std::span<std::byte> bytes, std::size_t offset, T value) {
    for (std::size_t i = 0; i < sizeof value; ++i, value = static_cast<T>(value >> 8))
        bytes[offset + i] = static_cast<std::byte>(value);
}

/// Fills the first `interface_message::size` bytes.
void writeInterfaceMessage(std::span<std::byte> bytes, std::uint16_t index, std::uint64_t received,
                           std::uint64_t sent);

}  // namespace vantor
