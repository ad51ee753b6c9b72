#include "platform/linux/power/linux_power_sources.h"

#include <dirent.h>
#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/files/attribute_file.h"
#include "platform/linux/power/battery_charge.h"
#include "platform/linux/power/power_supply.h"

namespace vantor {

namespace {

class LinuxInfo : public PowerSources::Info {
  public:
    explicit LinuxInfo(std::vector<std::optional<PropertyDictionary>> sources)
        : sources_(std::move(sources)) {}

    std::optional<std::size_t> count() const override { return sources_.size(); }
    bool hasSource(std::size_t index) const override { return index < sources_.size(); }
    const PropertyDictionary* description(std::size_t index) const override {
        return sources_[index] ? &*sources_[index] : nullptr;
    }

  private:
    std::vector<std::optional<PropertyDictionary>> sources_;
};

/// An open listing of a folder.
class Folder {
  public:
    explicit Folder(const char* path) : stream_(::opendir(path)) {}
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        if (stream_) ::closedir(stream_);
    }
    explicit operator bool() const { return stream_ != nullptr; }
    int descriptor() const { return ::dirfd(stream_); }

    /// In alphabetical order, as the kernel's changes; absent when the listing fails midway.
    std::optional<std::vector<std::string>> names() {
        std::vector<std::string> names;
        while (true) {
            errno = 0;
            const dirent* const entry = ::readdir(stream_);
            if (!entry) break;
            if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
        }
        if (errno != 0) return std::nullopt;
        std::sort(names.begin(), names.end());
        return names;
    }

  private:
    DIR* stream_;
};

/// The files of one supply.
class SupplyFiles {
  public:
    SupplyFiles(int parent, const std::string& name)
        : folder_(::openat(parent, name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)),
          isGone_(!folder_ && (errno == ENOENT || errno == ENODEV)) {}

    /// The folder was not there any more.
    bool isGone() const { return isGone_; }

    PowerSupplyTexts::Text read(const char* file) {
        if (!folder_) return std::nullopt;
        AttributeText said = readAttribute(folder_.get(), file);
        if (!said.wasRead()) return std::nullopt;
        return std::move(said.text);
    }

    bool isStillThere() const { return folder_ && !readAttribute(folder_.get(), "type").isGone(); }

  private:
    FileDescriptor folder_;
    bool isGone_ = false;
};

/// What is not needed is not asked for: a question may go as far as the battery's own electronics.
void readBattery(SupplyFiles& files, PowerSupplyTexts& texts) {
    texts.status = files.read("status");
    texts.energyNow = files.read("energy_now");
    texts.energyFull = files.read("energy_full");
    const bool hasEnergy = saysEnergy(texts);
    if (!hasEnergy) {
        texts.chargeNow = files.read("charge_now");
        texts.chargeFull = files.read("charge_full");
        texts.capacity = files.read("capacity");
        texts.currentNow = files.read("current_now");
    }
    texts.powerNow = files.read("power_now");
    if (hasEnergy && !texts.powerNow) texts.currentNow = files.read("current_now");
    if (!hasEnergy || !texts.powerNow) {
        texts.voltageDesign = files.read("voltage_min_design");
        texts.voltageNow = files.read("voltage_now");
    }
    texts.timeToFull = files.read("time_to_full_now");
    texts.timeToEmpty = files.read("time_to_empty_now");
    texts.cycleCount = files.read("cycle_count");
    texts.modelName = files.read("model_name");
}

/// Absent when the supply is not there any more.
std::optional<PowerSupplyTexts> readSupply(int parent, const std::string& name) {
    SupplyFiles files(parent, name);
    if (files.isGone()) return std::nullopt;
    PowerSupplyTexts texts;
    texts.folder = name;
    texts.type = files.read("type");
    if (!texts.type) return files.isStillThere() ? std::optional(texts) : std::nullopt;
    texts.scope = files.read("scope");
    if (texts.scope == "Device") return texts;
    if (texts.isCharger()) texts.online = files.read("online");
    if (!texts.isBattery() && !texts.isUPS()) return texts;
    texts.present = files.read("present");
    if (texts.present == "0") return texts;
    readBattery(files, texts);
    // A battery that was pulled out meanwhile is not one that cannot be read.
    if (!saysHowFull(texts) && !files.isStillThere()) return std::nullopt;
    return texts;
}

}  // namespace

std::unique_ptr<PowerSources::Info> LinuxPowerSources::copyInfo() {
    const auto path = roots_.sys / "class/power_supply";
    Folder folder(path.c_str());
    std::vector<PowerSupplyTexts> supplies;
    if (folder) {
        const auto names = folder.names();
        if (!names) return nullptr;
        for (const std::string& name : *names) {
            if (auto supply = readSupply(folder.descriptor(), name)) {
                supplies.push_back(std::move(*supply));
            }
        }
    } else if (errno != ENOENT) {
        return nullptr;
    }
    return std::make_unique<LinuxInfo>(describePowerSupplies(supplies));
}

}  // namespace vantor
