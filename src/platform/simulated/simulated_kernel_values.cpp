#include "platform/simulated/simulated_kernel_values.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace vantor {

namespace {

template <class T>
std::vector<std::byte> bytesOf(T value) {
    std::vector<std::byte> bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

}  // namespace

void SimulatedKernelValues::setText(const std::string& name, std::string_view text) {
    std::vector<std::byte> bytes(text.size() + 1);
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](char c) { return static_cast<std::byte>(c); });
    setBytes(name, std::move(bytes));
}

void SimulatedKernelValues::setInt32(const std::string& name, std::int32_t value) {
    setBytes(name, bytesOf(value));
}

void SimulatedKernelValues::setUInt64(const std::string& name, std::uint64_t value) {
    setBytes(name, bytesOf(value));
}

void SimulatedKernelValues::setBytes(const std::string& name, std::vector<std::byte> bytes) {
    values_[name].bytes = std::move(bytes);
}

void SimulatedKernelValues::failNext(const std::string& name, std::deque<int> errors) {
    values_[name].errors = std::move(errors);
}

void SimulatedKernelValues::growAfterSizeQuestion(const std::string& name, std::size_t bytes,
                                                  int times) {
    values_[name].growth = bytes;
    values_[name].growths = times;
}

int SimulatedKernelValues::valueReads(const std::string& name) const {
    const auto found = values_.find(name);
    return found == values_.end() ? 0 : found->second.reads;
}

int SimulatedKernelValues::sysctlbyname(const std::string& name, std::span<std::byte> buffer,
                                        std::size_t& size) {
    const std::lock_guard guard(lock_);
    const auto found = values_.find(name);
    if (found == values_.end()) return ENOENT;
    Value& value = found->second;
    const bool asksForSize = buffer.empty();
    if (!asksForSize) ++value.reads;
    if (!value.errors.empty()) {
        const int error = value.errors.front();
        value.errors.pop_front();
        if (error != 0) return error;
    }
    size = value.bytes.size();
    if (asksForSize) {
        if (value.growths > 0) {
            --value.growths;
            value.bytes.insert(value.bytes.begin(), value.growth, std::byte{'x'});
        }
        return 0;
    }
    if (buffer.size() < value.bytes.size()) return ENOMEM;
    std::copy(value.bytes.begin(), value.bytes.end(), buffer.begin());
    return 0;
}

}  // namespace vantor
