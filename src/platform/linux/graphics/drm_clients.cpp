#include "platform/linux/graphics/drm_clients.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

#include "platform/linux/graphics/drm_fdinfo.h"

namespace vantor {

namespace {

constexpr std::size_t maxOpenFiles = 256;
/// Drivers with many memory regions write some two kilobytes.
constexpr std::size_t drmClientsBufferSize = std::size_t{16} * 1024;

/// A text that tells its device must tell the one whose node is open.
bool isOf(const DRMFdInfo& info, const DRMDevice& device) {
    return !info.device || !device.address || *info.device == *device.address;
}

}  // namespace

DRMClients::DRMClients(const LinuxRoots& roots)
    : proc_(::open(roots.proc.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), sweep_(roots.proc) {}

void DRMClients::adopt(std::span<const DRMDevice* const> awake) {
    const auto isUnchanged = [](const Device& device, const DRMDevice* place) {
        return device.place == place && device.id == place->registryID();
    };
    if (std::equal(devices_.begin(), devices_.end(), awake.begin(), awake.end(), isUnchanged)) {
        return;
    }
    bool isSomeoneNew = false;
    std::vector<Device> next;
    next.reserve(awake.size());
    for (const DRMDevice* const place : awake) {
        const std::uint64_t id = place->registryID();
        if (Device* const known = find(id)) {
            next.push_back(std::move(*known));
            next.back().place = place;
        } else {
            next.push_back({place, id, {}, {}});
            isSomeoneNew = true;
        }
    }
    devices_ = std::move(next);
    std::erase_if(clients_, [this](const Client& client) { return !find(client.device); });
    if (!isSomeoneNew) return;
    sweep_.restart();
    updatedAt_.reset();
}

DRMClients::Device* DRMClients::find(std::uint64_t registryID) {
    const auto found =
        std::find_if(devices_.begin(), devices_.end(),
                     [registryID](const Device& device) { return device.id == registryID; });
    return found == devices_.end() ? nullptr : &*found;
}

DRMClients::Device* DRMClients::findByNode(std::string_view node) {
    for (Device& device : devices_) {
        const auto& nodes = device.place->nodes;
        if (std::find(nodes.begin(), nodes.end(), node) != nodes.end()) return &device;
    }
    return nullptr;
}

void DRMClients::update(double now, std::span<const DRMDevice* const> awake) {
    adopt(awake);
    if (devices_.empty()) {
        updatedAt_.reset();
        return;
    }
    if (updatedAt_ && now >= *updatedAt_ && now - *updatedAt_ < minInterval) return;
    updatedAt_ = now;
    for (Device& device : devices_)
        device.shares.clear();
    std::erase_if(clients_, [&](Client& client) {
        Device* const device = find(client.device);
        return !device || !ask(client, *device, now);
    });
    for (const DRMDescriptor& descriptor : sweep_.step(now))
        meet(descriptor, now);
    for (Device& device : devices_)
        device.utilization = device.shares.busiest();
}

bool DRMClients::ask(Client& client, Device& device, double now) {
    const FileDescriptor opened = client.file ? FileDescriptor{} : open(client.pid, client.fd);
    const auto text = read(client.file ? client.file : opened);
    if (!text) return false;
    // Most clients do nothing most of the time.
    if (*text == client.text) {
        client.engines.stayIdle(now, device.shares);
        return true;
    }
    const auto info = DRMFdInfo::parse(*text);
    // The descriptor's number may be another file's by now.
    if (!info || info->clientID != client.id || !isOf(*info, *device.place)) return false;
    client.engines.measure(*info, now, device.shares);
    client.text = *text;
    return true;
}

void DRMClients::meet(const DRMDescriptor& descriptor, double now) {
    Device* const device = findByNode(descriptor.node);
    if (!device) return;
    const auto isKnown = [&](const Client& each) {
        return each.pid == descriptor.pid && each.fd == descriptor.fd;
    };
    if (std::any_of(clients_.begin(), clients_.end(), isKnown)) return;
    Client client;
    client.file = open(descriptor.pid, descriptor.fd);
    const auto text = read(client.file);
    const auto info = text ? DRMFdInfo::parse(*text) : std::nullopt;
    if (!info || !isOf(*info, *device->place)) return;
    const auto isTheSame = [&](const Client& each) {
        return each.device == device->id && each.id == info->clientID;
    };
    if (std::any_of(clients_.begin(), clients_.end(), isTheSame)) return;
    client.device = device->id;
    client.id = info->clientID;
    client.pid = descriptor.pid;
    client.fd = descriptor.fd;
    client.text = *text;
    client.engines.measure(*info, now, device->shares);
    if (clients_.size() >= maxOpenFiles) client.file.reset();
    clients_.push_back(std::move(client));
}

FileDescriptor DRMClients::open(std::int32_t pid, std::int32_t fd) const {
    std::array<char, 48> path{};
    std::snprintf(path.data(), path.size(), "%d/fdinfo/%d", pid, fd);
    return FileDescriptor{::openat(proc_.get(), path.data(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
}

std::optional<std::string_view> DRMClients::read(const FileDescriptor& file) {
    if (!file) return std::nullopt;
    if (buffer_.empty()) buffer_.resize(drmClientsBufferSize);
    ssize_t count = 0;
    do {
        count = ::pread(file.get(), buffer_.data(), buffer_.size(), 0);
    } while (count < 0 && errno == EINTR);
    if (count <= 0 || static_cast<std::size_t>(count) >= buffer_.size()) return std::nullopt;
    return std::string_view(buffer_.data(), static_cast<std::size_t>(count));
}

std::optional<double> DRMClients::utilization(std::uint64_t registryID) const {
    for (const Device& device : devices_) {
        if (device.id == registryID) return device.utilization;
    }
    return std::nullopt;
}

}  // namespace vantor
