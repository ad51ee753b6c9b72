#include <string>
#include <utility>

#include "platform/macos/fake_darwin.h"

namespace vantor {

namespace {

using Kind = FakeObject::Kind;
using Ref = FakeObject::Ref;

CFIndex nextURL(CFTypeRef object, CFTypeRef* url, CFTypeRef* error) {
    const FakeCall call;
    const Ref enumerator =
        call->objects.check(object, Kind::enumerator, "CFURLEnumeratorGetNextURL");
    if (!enumerator) return 2;
    const bool isUnreadable = call->unreadableEntries.contains(enumerator->next);
    if (call->enumerationHasNoEnd || isUnreadable || call->fails()) {
        if (isUnreadable) ++enumerator->next;
        if (error) *error = &call->objects.create(Kind::error);
        return 3;
    }
    if (enumerator->next >= enumerator->entries.size()) return 2;
    *url = enumerator->entries[enumerator->next++].first;
    return 1;
}

CFTypeRef createEnumerator(CFTypeRef allocator, unsigned long options, CFTypeRef keys) {
    const FakeCall call;
    if (allocator || options != 2 || keys)
        call->objects.complain("an enumeration of hidden volumes, or with values fetched ahead");
    if (call->enumerationFails || call->fails()) return nullptr;
    FakeObject& enumerator = call->objects.create(Kind::enumerator);
    for (std::size_t i = 0; i < call->volumes.size(); ++i) {
        enumerator.entries.emplace_back(call->objects.createInto(&enumerator, Kind::url, i),
                                        nullptr);
    }
    return &enumerator;
}

CFTypeRef copyValues(CFTypeRef object, CFTypeRef keys, CFTypeRef* error) {
    const FakeCall call;
    constexpr auto name = "CFURLCopyResourcePropertiesForKeys";
    const Ref url = call->objects.check(object, Kind::url, name);
    const Ref list = call->objects.check(keys, Kind::array, name);
    if (!url || !list) return nullptr;
    const FakeDarwin::Volume& volume = call->volumes.at(url->next);
    std::string asked = volume.path ? asciiOf(volume.path) : "";
    FakeObject dictionary;
    dictionary.kind = Kind::dictionary;
    for (const auto& [key, nothing] : list->entries) {
        asked += " " + asciiOf(key);
        const auto value = volume.values.find(asciiOf(key));
        if (value != volume.values.end() && value->second)
            dictionary.entries.emplace_back(key, value->second);
    }
    call->askedOfVolumes.push_back(std::move(asked));
    if (volume.failsQueries || call->fails()) {
        if (error) *error = &call->objects.create(Kind::error);
        return nullptr;
    }
    return call->objects.copyOut(&dictionary);
}

template <Ref FakeDarwin::Volume::*part>
CFTypeRef copyPartOfURL(CFTypeRef object) {
    const FakeCall call;
    const Ref url = call->objects.check(object, Kind::url, "a part of a URL");
    if (!url || call->fails()) return nullptr;
    return call->objects.copyOut(call->volumes.at(url->next).*part);
}

}  // namespace

void addFakeVolumes(CoreFoundationTable& table, const FakeDarwin& darwin) {
    table.urlCopyFileSystemPath = [](CFTypeRef url, CFIndex style) {
        if (style != 0) FakeCall()->objects.complain("a path of another system");
        return copyPartOfURL<&FakeDarwin::Volume::path>(url);
    };
    table.urlCopyLastPathComponent = copyPartOfURL<&FakeDarwin::Volume::lastPathComponent>;
    table.urlCopyResourcePropertiesForKeys = copyValues;
    table.urlEnumeratorCreateForMountedVolumes = createEnumerator;
    table.urlEnumeratorGetNextURL = nextURL;
    table.volumeIsLocalKey = darwin.constants.at("NSURLVolumeIsLocalKey");
    table.volumeIsBrowsableKey = darwin.constants.at("NSURLVolumeIsBrowsableKey");
    table.volumeNameKey = darwin.constants.at("NSURLVolumeNameKey");
    table.volumeTotalCapacityKey = darwin.constants.at("NSURLVolumeTotalCapacityKey");
    table.volumeAvailableCapacityKey = darwin.constants.at("NSURLVolumeAvailableCapacityKey");
    table.volumeIsInternalKey = darwin.constants.at("NSURLVolumeIsInternalKey");
    table.volumeIsRemovableKey = darwin.constants.at("NSURLVolumeIsRemovableKey");
    table.volumeIsReadOnlyKey = darwin.constants.at("NSURLVolumeIsReadOnlyKey");
}

}  // namespace vantor
