#include "platform/sysctl.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "model/utf8.h"

namespace vantor {

namespace {

constexpr int sysctlRetries = 2;

template <class T>
std::optional<T> readInteger(KernelValues& values, const std::string& name) {
    T value{};
    std::size_t size = sizeof value;
    const int error = values.sysctlbyname(name, std::as_writable_bytes(std::span{&value, 1}), size);
    if (error != 0 || size != sizeof value) return std::nullopt;
    return value;
}

}  // namespace

std::optional<std::string> Sysctl::string(const std::string& name) const {
    std::size_t size = 0;
    if (values_->sysctlbyname(name, {}, size) != 0 || size < 1) return std::nullopt;
    std::vector<std::byte> buffer(size);
    std::size_t count = size;
    int error = values_->sysctlbyname(name, buffer, count);
    for (int retry = 0; error == ENOMEM && retry < sysctlRetries; ++retry) {
        if (values_->sysctlbyname(name, {}, size) != 0 || size <= buffer.size()) {
            return std::nullopt;
        }
        buffer.assign(size, std::byte{0});
        count = size;
        error = values_->sysctlbyname(name, buffer, count);
    }
    if (error != 0) return std::nullopt;
    const auto bytes = std::span(buffer).first(std::min(count, buffer.size()));
    const auto end = std::find(bytes.begin(), bytes.end(), std::byte{0});
    std::string text(static_cast<std::size_t>(end - bytes.begin()), '\0');
    std::transform(bytes.begin(), end, text.begin(),
                   [](std::byte b) { return static_cast<char>(b); });
    if (!isUTF8(text)) return std::nullopt;
    return text;
}

std::optional<std::int32_t> Sysctl::int32(const std::string& name) const {
    return readInteger<std::int32_t>(*values_, name);
}

std::optional<std::uint64_t> Sysctl::uint64(const std::string& name) const {
    return readInteger<std::uint64_t>(*values_, name);
}

}  // namespace vantor
