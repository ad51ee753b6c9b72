#include "platform/linux/graphics/graphics_card.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/linux/files/kernel_file.h"
#include "platform/linux/sensors/thermal_zones.h"

namespace vantor {

namespace {

// Of the drivers that tell of their engines in fdinfo; who has no such keys is not searched for.
constexpr std::array<std::string_view, 10> driversWithClients{
    "amdgpu", "asahi", "etnaviv", "i915", "lima", "msm", "panfrost", "panthor", "v3d", "xe"};

constexpr std::uint32_t displayClass = 0x03;
// Sensors that are off or broken tell temperatures that no working card has.
constexpr std::int64_t graphicsCardColdest = -100'000;
constexpr std::int64_t graphicsCardHottest = 250'000;

bool isListed(const auto& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

/// "0x10de".
template <class Number>
std::optional<Number> readHex(const std::filesystem::path& file) {
    const auto text = readKernelText(file);
    if (!text || !text->starts_with("0x")) return std::nullopt;
    Number number = 0;
    const char* const end = text->data() + text->size();
    const auto [rest, error] = std::from_chars(text->data() + 2, end, number, 16);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

/// The first of a device tree's texts, which end with zero bytes.
std::string firstText(const std::optional<std::string>& texts) {
    return texts ? texts->substr(0, texts->find('\0')) : std::string();
}

/// Degrees Celsius.
std::optional<double> readSensor(const SmallFile& sensor) {
    std::array<char, 32> buffer{};
    const auto text = sensor.read(buffer);
    const auto temperature = text ? parseTemperature(*text) : std::nullopt;
    if (!temperature || *temperature < graphicsCardColdest || *temperature > graphicsCardHottest)
        return std::nullopt;
    return static_cast<double>(*temperature) / 1000;
}

}  // namespace

GraphicsCard::GraphicsCard(DRMDevice place) : place_(std::move(place)), status_(place_.folder) {
    identity_.driver = place_.driver;
}

void GraphicsCard::forgetPass() {
    figures_ = {};
    files_.reset();
}

bool GraphicsCard::checkAwake() {
    figures_ = {};
    return checkStillAwake();
}

bool GraphicsCard::checkStillAwake() {
    isAwake_ = status_.isAwake();
    if (!isAwake_) {
        forgetPass();
        rest_.reset();
    }
    return isAwake_;
}

void GraphicsCard::readIdentity() {
    const auto& folder = place_.folder;
    GraphicsIdentity identity = identity_;
    if (place_.address) {
        const auto vendor = readHex<std::uint16_t>(folder / "vendor");
        const auto device = readHex<std::uint16_t>(folder / "device");
        if (vendor && device) {
            identity.vendor = vendor;
            identity.device = device;
            wasSeenAwake_ = true;
        }
        if (const auto revision = readHex<std::uint8_t>(folder / "revision")) {
            identity.revision = revision;
        }
        if (const auto code = readHex<std::uint32_t>(folder / "class")) {
            // Accelerators for computing are of another class, and have nodes.
            isGraphics_ = !place_.nodes.empty() || *code >> 16 == displayClass;
        }
        isBootDisplay_ = readKernelText(folder / "boot_vga") == "1";
    } else {
        identity.compatible = firstText(readKernelFile(folder / "of_node/compatible"));
        wasSeenAwake_ = true;
    }
    const auto control = readKernelText(folder / "power/control");
    managesPower_ =
        control == "auto" && readKernelText(folder / "power/runtime_status") != "unsupported";
    if (identity != identity_) {
        name_.clear();
        isNameOfLibrary_ = false;
    }
    identity_ = std::move(identity);
}

void GraphicsCard::guessUnifiedMemory() {
    if (place_.driver == "amdgpu") {
        if (files_) hasUnifiedMemory_ = files_->sensors.isBesideProcessor;
    } else if (place_.driver == "i915" || place_.driver == "xe") {
        // A processor's own graphics have had this place since there are any; cards with a memory
        // of their own are behind a bridge.
        constexpr PCIAddress ownPlace{0, 0, 2, 0};
        hasUnifiedMemory_ = place_.address == ownPlace;
    } else {
        // A device of the device tree is on the processor's chip.
        hasUnifiedMemory_ = !place_.address && !identity_.compatible.empty();
    }
}

void GraphicsCard::identify(const GraphicsNames& names, std::string_view pciDevices) {
    if (place_.driver != identity_.driver) {
        identity_.driver = place_.driver;
        name_.clear();
        isNameOfLibrary_ = false;
    }
    if (isAwake_) {
        readIdentity();
        rest_.setDelay(CardBackOff::findDelay(place_.folder));
        if (!files_) open();
    }
    if (!wasSeenAwake_ && place_.address) {
        const auto numbers = findPCIDevice(pciDevices, *place_.address);
        if (numbers && identity_.vendor != numbers->vendor) name_.clear();
        if (numbers && identity_.device != numbers->device) name_.clear();
        if (numbers) identity_.vendor = numbers->vendor;
        if (numbers) identity_.device = numbers->device;
    }
    guessUnifiedMemory();
    if (name_.empty()) name_ = names.find(identity_);
    if (isAwake_ && memorySize_ == 0 && files_->amdgpu) read(std::nullopt);
}

void GraphicsCard::open() {
    files_.emplace(Files{CardSensors::find(place_.folder), std::nullopt});
    if (place_.driver == "amdgpu") {
        files_->amdgpu.emplace(place_.folder, files_->sensors.isBesideProcessor);
    }
}

bool GraphicsCard::isUsedByQuestions() const {
    // i915 answers for its clients from its own books; xe wakes the card to read its clock.
    const bool hasFiles = files_ && (files_->amdgpu || !files_->sensors.temperatures.empty());
    return hasFiles || needsLibrary() || place_.driver == "xe";
}

bool GraphicsCard::isResting(double now) {
    return isUsedByQuestions() && rest_.isResting(now);
}

void GraphicsCard::noteAsked(double now) {
    rest_.note(now, figures_.utilization);
}

void GraphicsCard::openAnew() {
    files_.reset();
}

bool GraphicsCard::needsLibrary() const {
    return place_.driver == "nvidia" && place_.address;
}

bool GraphicsCard::needsClients() const {
    if (files_ && files_->amdgpu) return files_->amdgpu->isBusynessUnknown();
    return isListed(driversWithClients, place_.driver);
}

void GraphicsCard::readTemperature() {
    for (const SmallFile& sensor : files_->sensors.temperatures) {
        if (const auto temperature = readSensor(sensor)) {
            figures_.temperature = *temperature;
            return;
        }
        // It may have failed because the card goes to sleep, which the next one would undo.
        if (!checkStillAwake()) return;
    }
}

void GraphicsCard::read(std::optional<double> clientUtilization) {
    if (!files_) open();
    // What could be read is of a card that was just going to sleep, if it is asleep by now.
    if (files_->amdgpu && !files_->amdgpu->read(figures_) && !checkStillAwake()) return;
    readTemperature();
    if (!isAwake_) return;
    if (!figures_.utilization && clientUtilization && needsClients()) {
        figures_.utilization = *clientUtilization * 100;
    }
    if (figures_.memoryTotal) memorySize_ = *figures_.memoryTotal;
}

void GraphicsCard::take(GraphicsLibrary::Answer answer) {
    const auto keep = [](auto& mine, const auto& theirs) {
        if (!mine) mine = theirs;
    };
    keep(figures_.utilization, answer.figures.utilization);
    keep(figures_.temperature, answer.figures.temperature);
    keep(figures_.memoryUsed, answer.figures.memoryUsed);
    keep(figures_.memoryTotal, answer.figures.memoryTotal);
    if (!figures_.utilization && !checkStillAwake()) return;
    if (figures_.memoryTotal) memorySize_ = *figures_.memoryTotal;
    if (!answer.name || isNameOfLibrary_) return;
    isNameOfLibrary_ = true;
    name_ = graphicsName(identity_, {{}, *std::move(answer.name), {}});
}

}  // namespace vantor
