#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vantor {

/// The four bytes of a key or type, the first one most significant ("TC0P" is 0x54433050); absent
/// for a text that is not four bytes long. Pure.
std::optional<std::uint32_t> fourCC(std::string_view text);

/// The record that the system management controller takes and gives, the same layout both ways:
/// numbers in the machine's byte order, at offset 0 the key, 28 the value's size, 32 its type,
/// 40 the result, 42 the command, 48 the value. Everything else is zero.
class SMCRecord {
  public:
    static constexpr std::size_t size = 80;
    static constexpr std::size_t keyOffset = 0;
    static constexpr std::size_t dataSizeOffset = 28;
    static constexpr std::size_t dataTypeOffset = 32;
    static constexpr std::size_t resultOffset = 40;
    static constexpr std::size_t commandOffset = 42;
    static constexpr std::size_t valueOffset = 48;
    static constexpr std::size_t valueSize = size - valueOffset;

    enum class Command : std::uint8_t { readBytes = 5, readKeyInfo = 9 };

    std::uint32_t key() const { return word(keyOffset); }
    void setKey(std::uint32_t code) { setWord(keyOffset, code); }

    std::uint32_t dataSize() const { return word(dataSizeOffset); }
    void setDataSize(std::uint32_t bytes) { setWord(dataSizeOffset, bytes); }

    std::uint32_t dataType() const { return word(dataTypeOffset); }
    void setDataType(std::uint32_t code) { setWord(dataTypeOffset, code); }

    /// 0 means success.
    std::uint8_t result() const { return std::to_integer<std::uint8_t>(bytes_[resultOffset]); }
    void setResult(std::uint8_t result) { bytes_[resultOffset] = std::byte{result}; }

    /// Any byte, of those that are commands and those that are none.
    Command command() const {
        return static_cast<Command>(std::to_integer<std::uint8_t>(bytes_[commandOffset]));
    }
    void setCommand(Command command) {
        bytes_[commandOffset] = std::byte{static_cast<std::uint8_t>(command)};
    }

    std::span<const std::byte, valueSize> value() const {
        return std::span(bytes_).last<valueSize>();
    }
    std::span<std::byte, valueSize> value() { return std::span(bytes_).last<valueSize>(); }

    std::span<const std::byte, size> bytes() const { return bytes_; }
    std::span<std::byte, size> bytes() { return bytes_; }
    void clear() { bytes_.fill(std::byte{0}); }

  private:
    std::uint32_t word(std::size_t offset) const;
    void setWord(std::size_t offset, std::uint32_t word);

    std::array<std::byte, size> bytes_{};
};

}  // namespace vantor
