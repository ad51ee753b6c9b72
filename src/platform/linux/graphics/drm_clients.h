#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/graphics/drm_listing.h"
#include "platform/linux/graphics/drm_sweep.h"
#include "platform/linux/graphics/engine_use.h"
#include "platform/linux/linux_roots.h"

namespace vantor {

/// What the user's processes do with graphics devices, from /proc/PID/fdinfo. That is all that
/// drivers without a figure of their own tell without privileges; other users' work is not in it.
/// One thread at a time.
///
/// A client may be open many times and counts once. Known ones are read again at each pass; who
/// has come is found within five seconds.
class DRMClients {
  public:
    /// Passes that follow each other faster say the same: their shares would be noise.
    static constexpr double minInterval = 0.1;

    explicit DRMClients(const LinuxRoots& roots);

    /// A pass at `now`, in seconds, over devices that are awake: to ask a client of one that is not
    /// may wake it. Of all others, nothing is kept and nothing read.
    void update(double now, std::span<const DRMDevice* const> awake);

    /// The busiest engine class of a device, 0 to 1; absent when no client of it was there at two
    /// passes.
    std::optional<double> utilization(std::uint64_t registryID) const;

  private:
    struct Client {
        std::uint64_t device = 0;
        std::uint64_t id = 0;
        std::int32_t pid = 0;
        std::int32_t fd = 0;
        FileDescriptor file;  // none when too many are open already
        std::string text;     // what was said last
        ClientEngines engines;
    };
    struct Device {
        const DRMDevice* place = nullptr;
        std::uint64_t id = 0;
        EngineShares shares;
        std::optional<double> utilization;
    };

    void adopt(std::span<const DRMDevice* const> awake);
    Device* find(std::uint64_t registryID);
    Device* findByNode(std::string_view node);
    bool ask(Client& client, Device& device, double now);
    void meet(const DRMDescriptor& descriptor, double now);
    FileDescriptor open(std::int32_t pid, std::int32_t fd) const;
    std::optional<std::string_view> read(const FileDescriptor& file);

    FileDescriptor proc_;
    DRMSweep sweep_;
    std::vector<Device> devices_;
    std::vector<Client> clients_;
    std::vector<char> buffer_;
    std::optional<double> updatedAt_;
};

}  // namespace vantor
