#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "platform/macos/frameworks/fake_objects.h"
#include "platform/macos/frameworks/frameworks.h"

namespace vantor {

/// A stand-in for the frameworks of a Mac, by script: it knows every object that it hands out, and
/// complains of every function that is called with what it must not be called with. One at a time;
/// its functions may be called from several threads at once.
class FakeDarwin {
  public:
    using Ref = FakeObject::Ref;

    struct PowerSource {
        bool isMissing = false;  ///< its entry of the list is null
        Ref description = nullptr;
    };
    struct Service {
        std::optional<std::uint64_t> registryEntryID;
        std::map<std::string, Ref> properties;
    };
    struct Volume {
        Ref path = nullptr;  ///< a text
        Ref lastPathComponent = nullptr;
        std::map<std::string, Ref> values;  ///< by resource key
        bool failsQueries = false;
    };
    struct Sensor {
        Ref product = nullptr;
        std::optional<double> value;  ///< absent: it has no event
    };
    /// What the controller answers: a kernel's result, with the size of what was written.
    using Controller = std::function<int(std::span<const std::byte> request,
                                         std::span<std::byte> response, std::size_t& size)>;

    FakeDarwin();
    FakeDarwin(const FakeDarwin&) = delete;
    FakeDarwin& operator=(const FakeDarwin&) = delete;
    ~FakeDarwin();

    static FakeDarwin& current();

    /// The tables of it, whole; the caller may take functions out.
    std::shared_ptr<Frameworks> frameworks() const;

    FakeObjects objects;

    // The script. What is null where an object is expected is answered as null.
    std::map<std::string, Ref> storeValues;
    bool hasPowerInfo = true;
    std::vector<PowerSource> powerSources;
    std::optional<Ref> otherPowerList;  ///< in place of the list of the sources
    bool lookupFails = false;           ///< of accelerators
    std::vector<Service> accelerators;
    Controller controller;  ///< none: there is no controller
    bool openFails = false;
    bool enumerationFails = false;
    std::vector<Volume> volumes;
    bool enumerationHasNoEnd = false;         ///< but one error after the other
    std::set<std::size_t> unreadableEntries;  ///< places in it, of an error each
    std::vector<Ref> devices;
    std::optional<Ref> otherDeviceList;  ///< in place of the list of the devices
    std::optional<std::size_t> defaultDevice;
    Ref processInfo = nullptr;
    bool hasProcessInfoClass = true;
    std::vector<Sensor> sensors;
    std::optional<Ref> otherSensorList;      ///< in place of the list of the services
    std::set<std::string> missingFunctions;  ///< of the event system

    /// The call with this number fails, of those that can; 0 is none.
    int failAt = 0;
    int callsThatCanFail = 0;

    // What happened.
    std::vector<std::string> askedOfVolumes;  ///< "path key key …", one for each query
    int defaultDevicesCreated = 0;
    int sensorListsMatched = 0;  ///< with a client that was told which sensors it is to list

    /// Everything that went wrong, and everything that is still to be given back.
    std::vector<std::string> wrongs() const;

    // For the functions that stand in.

    struct Port {
        enum class Kind { iterator, service, connection };
        Kind kind{};
        std::size_t index = 0;  ///< of a service; of what an iterator gives next
    };
    static constexpr MachPort mainPort = 77;
    static constexpr MachPort task = 515;

    bool fails() { return ++callsThatCanFail == failAt; }
    MachPort openPort(Port::Kind kind, std::size_t index = 0);
    /// Null, with a complaint, when that is no such port.
    Port* port(MachPort name, Port::Kind kind, const char* function);
    bool closePort(MachPort name) { return ports_.erase(name) == 1; }

    /// Of the calling thread, the innermost last.
    std::vector<Ref>& pools() { return pools_[std::this_thread::get_id()]; }
    std::map<std::string, Ref> constants;  ///< texts, by name
    Ref processInfoClass;
    std::set<Ref> matchedClients;
    std::recursive_mutex lock;

  private:
    std::map<std::thread::id, std::vector<Ref>> pools_;
    std::map<MachPort, Port> ports_;
    MachPort lastPort_ = 1000;
};

/// Within a function that stands in: the machine, for this call alone.
class FakeCall {
  public:
    FakeCall() : guard_(FakeDarwin::current().lock) {}
    FakeDarwin* operator->() const { return &FakeDarwin::current(); }
    FakeDarwin& operator*() const { return FakeDarwin::current(); }

  private:
    std::unique_lock<std::recursive_mutex> guard_;
};

// The parts of it.
CoreFoundationTable fakeCoreFoundation(const FakeDarwin& darwin);
/// The functions that are about volumes, and the keys of their values.
void addFakeVolumes(CoreFoundationTable& table, const FakeDarwin& darwin);
IOKitTable fakeIOKit();
ObjectiveCTable fakeObjectiveC();
MetalTable fakeMetal();
SystemConfigurationTable fakeSystemConfiguration();
/// Has one library, which holds the event system's functions.
LibraryLoader fakeLoader();

}  // namespace vantor
