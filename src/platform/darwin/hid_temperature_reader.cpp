#include "platform/darwin/hid_temperature_reader.h"

#include <cstdint>
#include <utility>

namespace vantor {

namespace {

constexpr double readingInterval = 0.25;

constexpr const char* libraryPath = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr std::int32_t hidTemperatureSensorUsagePage = 0xFF00;
constexpr std::int32_t hidTemperatureTemperatureUsage = 5;
constexpr std::int64_t hidTemperatureTemperatureEvent = 15;
constexpr std::int32_t hidTemperatureTemperatureField = 15 << 16;

using Object = HIDEventSystem::Object;

class OwnedObject {
  public:
    OwnedObject(HIDEventSystem& system, Object object) : system_(system), object_(object) {}
    OwnedObject(const OwnedObject&) = delete;
    OwnedObject& operator=(const OwnedObject&) = delete;
    ~OwnedObject() {
        if (object_ != 0) system_.release(object_);
    }

    Object get() const { return object_; }

  private:
    HIDEventSystem& system_;
    Object object_;
};

/// Releases the objects of a list and leaves it empty, its storage kept.
class OwnedList {
  public:
    OwnedList(HIDEventSystem& system, std::vector<Object>& objects)
        : system_(system), objects_(objects) {}
    OwnedList(const OwnedList&) = delete;
    OwnedList& operator=(const OwnedList&) = delete;
    ~OwnedList() {
        for (const Object object : objects_)
            system_.release(object);
        objects_.clear();
    }

  private:
    HIDEventSystem& system_;
    std::vector<Object>& objects_;
};

void lowerCase(std::string& text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
}

}  // namespace

HIDTemperatureReader::HIDAPI::LibraryHandle::LibraryHandle(HIDEventSystem& system)
    : system_(system) {
    if (void* const library = system.openLibrary(libraryPath)) rawValue = library;
}

HIDTemperatureReader::HIDAPI::LibraryHandle::~LibraryHandle() {
    if (rawValue) system_.closeLibrary(*rawValue);
}

const HIDEventSystem::Functions* HIDTemperatureReader::HIDAPI::functions() {
    if (!library_) {
        library_.emplace(system_);
        if (!library_->rawValue) return nullptr;
        const auto resolve = [this](HIDEventSystem::Function& function, const char* name) {
            function = system_.findFunction(*library_->rawValue, name);
            if (!function) isComplete_ = false;
        };
        isComplete_ = true;
        resolve(functions_.clientCreate, "IOHIDEventSystemClientCreate");
        resolve(functions_.clientSetMatching, "IOHIDEventSystemClientSetMatching");
        resolve(functions_.clientCopyServices, "IOHIDEventSystemClientCopyServices");
        resolve(functions_.serviceCopyProperty, "IOHIDServiceClientCopyProperty");
        resolve(functions_.serviceCopyEvent, "IOHIDServiceClientCopyEvent");
        resolve(functions_.eventGetFloatValue, "IOHIDEventGetFloatValue");
    }
    return isComplete_ ? &functions_ : nullptr;
}

HIDTemperatureReader::HIDTemperatureReader(HIDEventSystem& system, const ProcessInfo& processInfo)
    : system_(system), processInfo_(processInfo), api_(system) {}

HIDTemperatureReader::Readings HIDTemperatureReader::readings() {
    const double uptime = processInfo_.systemUptime();
    {
        const std::lock_guard guard(cache_.lock);
        const bool isOld = uptime - cache_.lastReadUptime > readingInterval;
        if (!isOld || cache_.loadInProgress) return cache_.cached;
        cache_.loadInProgress = true;
    }
    const auto loaded = std::make_shared<const std::vector<Reading>>(loadReadings());
    const double loadedAt = processInfo_.systemUptime();
    Readings old;  // destroyed after the lock is given back
    const std::lock_guard guard(cache_.lock);
    old = std::exchange(cache_.cached, loaded);
    cache_.lastReadUptime = loadedAt;
    cache_.loadInProgress = false;
    return loaded;
}

std::vector<HIDTemperatureReader::Reading> HIDTemperatureReader::loadReadings() {
    std::vector<Reading> readings;
    const HIDEventSystem::Functions* const functions = api_.functions();
    if (!functions) return readings;
    const OwnedObject client(system_, system_.createClient(*functions));
    if (client.get() == 0) return readings;
    system_.setMatching(*functions, client.get(), hidTemperatureSensorUsagePage,
                        hidTemperatureTemperatureUsage);
    const OwnedList owned(system_, services_);
    if (!system_.copyServices(*functions, client.get(), services_)) return readings;
    readings.reserve(services_.size());
    for (const Object service : services_) {
        if (auto reading = readSensor(*functions, service)) {
            readings.push_back(std::move(*reading));
        }
    }
    return readings;
}

std::optional<HIDTemperatureReader::Reading> HIDTemperatureReader::readSensor(
    const HIDEventSystem::Functions& functions, Object service) {
    auto name = system_.copyProperty(functions, service, "Product");
    if (!name || name->empty()) return std::nullopt;
    const OwnedObject event(system_,
                            system_.copyEvent(functions, service, hidTemperatureTemperatureEvent));
    if (event.get() == 0) return std::nullopt;
    lowerCase(*name);
    return Reading{std::move(*name),
                   system_.floatValue(functions, event.get(), hidTemperatureTemperatureField)};
}

}  // namespace vantor
