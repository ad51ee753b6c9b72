#include "platform/linux/graphics/nvml_library.h"

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace vantor {

namespace {

// Of nvml.h, which is not everywhere where this is built. Results are of an enumeration.
using Result = int;
using Device = void*;

constexpr Result success = 0;
constexpr int temperatureOfChip = 0;

struct Utilization {
    unsigned chip = 0;    // percent of the time since the last sample
    unsigned memory = 0;  // percent of the time that memory was accessed
};

struct Memory {
    unsigned long long total = 0;
    unsigned long long free = 0;
    unsigned long long used = 0;
};

struct Functions {
    Result (*init)() = nullptr;
    Result (*shutdown)() = nullptr;
    Result (*findByAddress)(const char* address, Device* device) = nullptr;
    Result (*utilization)(Device, Utilization*) = nullptr;
    Result (*memory)(Device, Memory*) = nullptr;
    Result (*temperature)(Device, int sensor, unsigned* celsius) = nullptr;
    Result (*name)(Device, char* buffer, unsigned length) = nullptr;
};

template <class Function>
void findFunction(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(::dlsym(library, name));
}

class NVMLLibrary : public GraphicsLibrary {
  public:
    explicit NVMLLibrary(std::string file) : file_(std::move(file)) {}
    NVMLLibrary(const NVMLLibrary&) = delete;
    NVMLLibrary& operator=(const NVMLLibrary&) = delete;
    ~NVMLLibrary() override {
        shutDown();
        if (library_) ::dlclose(library_);
    }

    bool open() override {
        if (isOpen_) return true;
        if (callsToSkip_ > 0) {
            --callsToSkip_;
            return false;
        }
        isOpen_ = load() && functions_.init() == success;
        if (!isOpen_) callsToSkip_ = callsBetweenAttempts;
        return isOpen_;
    }

    Answer ask(const PCIAddress& address) override {
        Answer answer;
        const Device device = isOpen_ ? find(address) : nullptr;
        if (!device) return answer;
        askUtilization(device, answer.figures);
        askMemory(device, answer.figures);
        unsigned celsius = 0;
        if (functions_.temperature &&
            functions_.temperature(device, temperatureOfChip, &celsius) == success &&
            celsius <= hottest) {
            answer.figures.temperature = celsius;
        }
        std::array<char, 128> name{};  // longer than any that NVML gives
        if (functions_.name && functions_.name(device, name.data(), name.size() - 1) == success &&
            name.front() != '\0') {
            answer.name = name.data();
        }
        // One that says nothing may be lost; should it come back, it is another to the library.
        if (answer.figures == GraphicsFigures{}) {
            std::erase_if(devices_, [&](const auto& known) { return known.second == device; });
        }
        return answer;
    }

    void close() override { shutDown(); }

  private:
    static constexpr int callsBetweenAttempts = 60;
    static constexpr unsigned hottest = 250;

    bool load() {
        if (!library_) {
            library_ = ::dlopen(file_.c_str(), RTLD_LAZY | RTLD_LOCAL);
            if (!library_) return false;
            findFunction(library_, "nvmlInit_v2", functions_.init);
            findFunction(library_, "nvmlShutdown", functions_.shutdown);
            findFunction(library_, "nvmlDeviceGetHandleByPciBusId_v2", functions_.findByAddress);
            findFunction(library_, "nvmlDeviceGetUtilizationRates", functions_.utilization);
            findFunction(library_, "nvmlDeviceGetMemoryInfo", functions_.memory);
            findFunction(library_, "nvmlDeviceGetTemperature", functions_.temperature);
            findFunction(library_, "nvmlDeviceGetName", functions_.name);
        }
        // The first versions of two of these wake all devices; what cannot be shut down cannot be
        // let go of.
        return functions_.init && functions_.shutdown && functions_.findByAddress;
    }

    void shutDown() {
        if (isOpen_) functions_.shutdown();
        isOpen_ = false;
        devices_.clear();
    }

    Device find(const PCIAddress& address) {
        for (const auto& [place, device] : devices_) {
            if (place == address) return device;
        }
        Device device = nullptr;
        if (functions_.findByAddress(address.text().c_str(), &device) != success) return nullptr;
        if (device) devices_.emplace_back(address, device);
        return device;
    }

    void askUtilization(Device device, GraphicsFigures& figures) const {
        Utilization utilization;
        if (!functions_.utilization) return;
        if (functions_.utilization(device, &utilization) != success) return;
        if (utilization.chip <= 100) figures.utilization = utilization.chip;
    }

    void askMemory(Device device, GraphicsFigures& figures) const {
        Memory memory;
        if (!functions_.memory || functions_.memory(device, &memory) != success) return;
        if (memory.total == 0 || memory.used > memory.total) return;
        figures.memoryUsed = memory.used;
        figures.memoryTotal = memory.total;
    }

    std::string file_;
    void* library_ = nullptr;
    Functions functions_;
    bool isOpen_ = false;
    int callsToSkip_ = 0;
    std::vector<std::pair<PCIAddress, Device>> devices_;
};

}  // namespace

std::shared_ptr<GraphicsLibrary> makeNVMLLibrary(std::string file) {
    return std::make_shared<NVMLLibrary>(std::move(file));
}

}  // namespace vantor
