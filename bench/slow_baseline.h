#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vantor::bench {

/// The least that anyone who wants the volumes' figures must do: read the table of mounts and ask
/// each file system how large it is. Nothing is looked at.
class StorageBaseline {
  public:
    /// The paths of the volumes.
    explicit StorageBaseline(const std::vector<std::string>& paths);

    /// Gives the sum of all that was answered.
    std::size_t askSpace();

    /// Asks besides for what the space does not tell, and what only the devices' own files do:
    /// where each is plugged in, whether it can be taken out, and its label.
    std::size_t askSpaceAndDevices();

  private:
    struct Volume {
        std::string path;
        std::string device;  ///< a link
        std::string removable;
        std::string label;
    };

    std::vector<Volume> volumes_;
    std::array<char, std::size_t{16} * 1024> buffer_{};
};

/// The least that anyone who wants the batteries' state must do: list the folder of supplies, and
/// open, read and close their files. Nothing is looked at but what is a battery.
class PowerBaseline {
  public:
    /// The folder, "/sys/class/power_supply".
    explicit PowerBaseline(std::string folder) : folder_(std::move(folder)) {}

    /// Gives how many bytes were read.
    std::size_t pass();

  private:
    std::string folder_;
    std::array<char, 4096> buffer_{};
};

}  // namespace vantor::bench
