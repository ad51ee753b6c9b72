#include "probes/process_names.h"

#include <algorithm>
#include <span>
#include <tuple>

#include "model/utf8.h"

namespace vantor {

namespace {

/// The bytes that a call wrote, up to the first zero byte; none when it failed.
std::string_view written(std::span<const char> buffer, int count) {
    if (count < 1 || static_cast<std::size_t>(count) > buffer.size()) return {};
    const std::string_view bytes(buffer.data(), static_cast<std::size_t>(count));
    return bytes.substr(0, bytes.find('\0'));
}

/// Keeps the texts that are there when they are equal.
void assign(ProcessMetadata& metadata, std::string_view name, std::string_view command) {
    if (metadata.name.string() == name && metadata.command.string() == command) return;
    if (name == command) {
        metadata.name = metadata.command = std::string(name);
        return;
    }
    std::tie(metadata.name, metadata.command) =
        SharedText::pair(std::string(name), std::string(command));
}

}  // namespace

std::string_view lastPathComponent(std::string_view path) {
    const auto last = path.find_last_not_of('/');
    if (last == std::string_view::npos) return {};
    path = path.substr(0, last + 1);
    const auto slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view ProcessNames::path(std::int32_t pid) {
    return validUTF8(written(pathBuffer_, table_.path(pid, pathBuffer_)), decoded_);
}

std::string_view ProcessNames::kernelName(std::int32_t pid) {
    return validUTF8(written(nameBuffer_, table_.name(pid, nameBuffer_)), decoded_);
}

void ProcessNames::lookUp(std::int32_t pid, ProcessMetadata& metadata) {
    const std::string_view path = this->path(pid);
    if (const std::string_view name = lastPathComponent(path); !name.empty()) {
        assign(metadata, name, path);
        return;
    }
    const std::string command(path);  // the name's lookup reuses the buffer of mended text
    const std::string_view read = kernelName(pid);
    const std::string name = read.empty() ? "PID " + std::to_string(pid) : std::string(read);
    assign(metadata, name, command.empty() ? name : command);
}

}  // namespace vantor
