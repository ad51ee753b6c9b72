#include "platform/macos/frameworks/frameworks.h"

#include <utility>

namespace vantor {

namespace {

// Where a structure of more than two registers is returned through memory, the message is sent by
// another function; elsewhere that one does not exist.
#if defined(__x86_64__)
constexpr const char* sendStructure = "objc_msgSend_stret";
#else
constexpr const char* sendStructure = "objc_msgSend";
#endif

void findObjects(const LoadedFramework& library, CoreFoundationTable& table) {
    library.findFunction("CFRetain", table.retain);
    library.findFunction("CFRelease", table.release);
    library.findFunction("CFGetTypeID", table.getTypeID);
    library.findFunction("CFStringGetTypeID", table.stringGetTypeID);
    library.findFunction("CFStringCreateWithBytes", table.stringCreateWithBytes);
    library.findFunction("CFStringGetLength", table.stringGetLength);
    library.findFunction("CFStringGetBytes", table.stringGetBytes);
    library.findFunction("CFStringCompareWithOptionsAndLocale", table.stringCompare);
    library.findFunction("CFLocaleCopyCurrent", table.localeCopyCurrent);
    library.findFunction("CFNumberGetTypeID", table.numberGetTypeID);
    library.findFunction("CFNumberCreate", table.numberCreate);
    library.findFunction("CFNumberIsFloatType", table.numberIsFloatType);
    library.findFunction("CFNumberGetValue", table.numberGetValue);
    library.findFunction("CFBooleanGetTypeID", table.booleanGetTypeID);
    library.findFunction("CFBooleanGetValue", table.booleanGetValue);
    library.findFunction("CFDataGetTypeID", table.dataGetTypeID);
    library.findFunction("CFDataGetLength", table.dataGetLength);
    library.findFunction("CFDataGetBytePtr", table.dataGetBytePtr);
}

void findCollections(const LoadedFramework& library, CoreFoundationTable& table) {
    library.findFunction("CFArrayGetTypeID", table.arrayGetTypeID);
    library.findFunction("CFArrayCreate", table.arrayCreate);
    library.findFunction("CFArrayGetCount", table.arrayGetCount);
    library.findFunction("CFArrayGetValueAtIndex", table.arrayGetValueAtIndex);
    library.findFunction("CFDictionaryGetTypeID", table.dictionaryGetTypeID);
    library.findFunction("CFDictionaryCreate", table.dictionaryCreate);
    library.findFunction("CFDictionaryGetCount", table.dictionaryGetCount);
    library.findFunction("CFDictionaryGetKeysAndValues", table.dictionaryGetKeysAndValues);
    library.findFunction("CFDictionaryGetValue", table.dictionaryGetValue);
    table.arrayCallBacks = library.find("kCFTypeArrayCallBacks");
    table.dictionaryKeyCallBacks = library.find("kCFTypeDictionaryKeyCallBacks");
    table.dictionaryValueCallBacks = library.find("kCFTypeDictionaryValueCallBacks");
}

void findVolumes(const LoadedFramework& library, CoreFoundationTable& table) {
    library.findFunction("CFURLCopyFileSystemPath", table.urlCopyFileSystemPath);
    library.findFunction("CFURLCopyLastPathComponent", table.urlCopyLastPathComponent);
    library.findFunction("CFURLCopyResourcePropertiesForKeys",
                         table.urlCopyResourcePropertiesForKeys);
    library.findFunction("CFURLEnumeratorCreateForMountedVolumes",
                         table.urlEnumeratorCreateForMountedVolumes);
    library.findFunction("CFURLEnumeratorGetNextURL", table.urlEnumeratorGetNextURL);
    table.volumeIsLocalKey = library.findConstant("kCFURLVolumeIsLocalKey");
    table.volumeIsBrowsableKey = library.findConstant("kCFURLVolumeIsBrowsableKey");
    table.volumeNameKey = library.findConstant("kCFURLVolumeNameKey");
    table.volumeTotalCapacityKey = library.findConstant("kCFURLVolumeTotalCapacityKey");
    table.volumeAvailableCapacityKey = library.findConstant("kCFURLVolumeAvailableCapacityKey");
    table.volumeIsInternalKey = library.findConstant("kCFURLVolumeIsInternalKey");
    table.volumeIsRemovableKey = library.findConstant("kCFURLVolumeIsRemovableKey");
    table.volumeIsReadOnlyKey = library.findConstant("kCFURLVolumeIsReadOnlyKey");
}

void findIOKit(const LoadedFramework& library, IOKitTable& table) {
    library.findFunction("IOServiceMatching", table.serviceMatching);
    library.findFunction("IOServiceGetMatchingService", table.serviceGetMatchingService);
    library.findFunction("IOServiceGetMatchingServices", table.serviceGetMatchingServices);
    library.findFunction("IOIteratorNext", table.iteratorNext);
    library.findFunction("IOObjectRelease", table.objectRelease);
    library.findFunction("IORegistryEntryCreateCFProperty", table.registryEntryCreateCFProperty);
    library.findFunction("IORegistryEntryGetRegistryEntryID",
                         table.registryEntryGetRegistryEntryID);
    library.findFunction("IOServiceOpen", table.serviceOpen);
    library.findFunction("IOServiceClose", table.serviceClose);
    library.findFunction("IOConnectCallStructMethod", table.connectCallStructMethod);
    library.findFunction("IOPSCopyPowerSourcesInfo", table.copyPowerSourcesInfo);
    library.findFunction("IOPSCopyPowerSourcesList", table.copyPowerSourcesList);
    library.findFunction("IOPSGetPowerSourceDescription", table.getPowerSourceDescription);
}

void findObjectiveC(const LoadedFramework& library, ObjectiveCTable& table) {
    library.findFunction("objc_getClass", table.getClass);
    library.findFunction("sel_registerName", table.registerName);
    library.findFunction("objc_autoreleasePoolPush", table.autoreleasePoolPush);
    library.findFunction("objc_autoreleasePoolPop", table.autoreleasePoolPop);
    library.findFunction("objc_release", table.release);
    library.findFunction("objc_msgSend", table.sendObject);
    library.findFunction("objc_msgSend", table.sendTruth);
    library.findFunction("objc_msgSend", table.sendTruthOfSelector);
    library.findFunction("objc_msgSend", table.sendInteger);
    library.findFunction("objc_msgSend", table.sendUnsigned);
    library.findFunction("objc_msgSend", table.sendDouble);
    library.findFunction(sendStructure, table.sendVersion);
}

MachPort portNamed(const LoadedFramework& library, const char* name) {
    const auto* const address = static_cast<const MachPort*>(library.find(name));
    return address ? *address : 0;
}

}  // namespace

std::shared_ptr<const Frameworks> loadFrameworks(const LibraryLoader& loader) {
    const auto frameworks = std::make_shared<Frameworks>();
    frameworks->loader = loader;
    const auto load = [&](const char* path) -> const LoadedFramework& {
        return frameworks->libraries.emplace_back(loader, path);
    };
    const auto& system = load("/usr/lib/libSystem.B.dylib");
    frameworks->task = portNamed(system, "mach_task_self_");
    findObjectiveC(load("/usr/lib/libobjc.A.dylib"), frameworks->objectiveC);
    const auto& coreFoundation =
        load("/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation");
    findObjects(coreFoundation, frameworks->coreFoundation);
    findCollections(coreFoundation, frameworks->coreFoundation);
    findVolumes(coreFoundation, frameworks->coreFoundation);
    load("/System/Library/Frameworks/SystemConfiguration.framework/SystemConfiguration")
        .findFunction("SCDynamicStoreCopyValue",
                      frameworks->systemConfiguration.dynamicStoreCopyValue);
    const auto& ioKit = load("/System/Library/Frameworks/IOKit.framework/IOKit");
    findIOKit(ioKit, frameworks->ioKit);
    // Since version 12; before, the port is null.
    frameworks->mainPort = portNamed(ioKit, "kIOMainPortDefault");
    // The class NSProcessInfo is in this one.
    load("/System/Library/Frameworks/Foundation.framework/Foundation");
    // Without it in the program, Metal tells of no default device.
    load("/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics");
    const auto& metal = load("/System/Library/Frameworks/Metal.framework/Metal");
    metal.findFunction("MTLCopyAllDevices", frameworks->metal.copyAllDevices);
    metal.findFunction("MTLCreateSystemDefaultDevice", frameworks->metal.createSystemDefaultDevice);
    return frameworks;
}

std::shared_ptr<const Frameworks> loadFrameworks() {
    return loadFrameworks(systemLibraryLoader());
}

}  // namespace vantor
