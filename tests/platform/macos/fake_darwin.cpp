#include "platform/macos/fake_darwin.h"

#include <cstdlib>

namespace vantor {

namespace {

FakeDarwin* theOne = nullptr;

}  // namespace

FakeDarwin::FakeDarwin() : processInfoClass(objects.instance({{"processInfo", nullptr}})) {
    if (theOne) std::abort();
    theOne = this;
    for (const char* const name :
         {"NSURLVolumeIsLocalKey", "NSURLVolumeIsBrowsableKey", "NSURLVolumeNameKey",
          "NSURLVolumeTotalCapacityKey", "NSURLVolumeAvailableCapacityKey",
          "NSURLVolumeIsInternalKey", "NSURLVolumeIsRemovableKey", "NSURLVolumeIsReadOnlyKey"}) {
        constants[name] = objects.text(name);
    }
}

FakeDarwin::~FakeDarwin() {
    theOne = nullptr;
}

FakeDarwin& FakeDarwin::current() {
    if (!theOne) std::abort();
    return *theOne;
}

std::shared_ptr<Frameworks> FakeDarwin::frameworks() const {
    auto frameworks = std::make_shared<Frameworks>();
    frameworks->loader = fakeLoader();
    frameworks->coreFoundation = fakeCoreFoundation(*this);
    frameworks->systemConfiguration = fakeSystemConfiguration();
    frameworks->ioKit = fakeIOKit();
    frameworks->metal = fakeMetal();
    frameworks->objectiveC = fakeObjectiveC();
    frameworks->mainPort = mainPort;
    frameworks->task = task;
    return frameworks;
}

std::vector<std::string> FakeDarwin::wrongs() const {
    std::vector<std::string> wrongs = objects.complaints();
    for (const std::string& leak : objects.leaks())
        wrongs.push_back("not released: " + leak);
    for (const auto& [name, port] : ports_)
        wrongs.push_back("a port of kind " + std::to_string(static_cast<int>(port.kind)) +
                         " is not given back");
    return wrongs;
}

MachPort FakeDarwin::openPort(Port::Kind kind, std::size_t index) {
    ports_.emplace(++lastPort_, Port{kind, index});
    return lastPort_;
}

FakeDarwin::Port* FakeDarwin::port(MachPort name, Port::Kind kind, const char* function) {
    const auto found = ports_.find(name);
    if (found != ports_.end() && found->second.kind == kind) return &found->second;
    objects.complain(std::string(function) + " of what is no such port");
    return nullptr;
}

SystemConfigurationTable fakeSystemConfiguration() {
    SystemConfigurationTable table;
    table.dynamicStoreCopyValue = [](CFTypeRef store, CFTypeRef key) -> CFTypeRef {
        const FakeCall call;
        if (store) call->objects.complain("a store that nobody made");
        const auto name =
            call->objects.check(key, FakeObject::Kind::text, "SCDynamicStoreCopyValue");
        if (!name || call->fails()) return nullptr;
        const auto found = call->storeValues.find(asciiOf(name));
        return found == call->storeValues.end() ? nullptr : call->objects.copyOut(found->second);
    };
    return table;
}

}  // namespace vantor
