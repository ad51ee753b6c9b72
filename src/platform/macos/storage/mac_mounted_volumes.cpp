#include "platform/macos/storage/mac_mounted_volumes.h"

#include <algorithm>
#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

namespace {

// More than anybody has mounted: an enumeration that returns more does not end.
constexpr int maxUnreadable = 1000;

}  // namespace

MacMountedVolumes::MacMountedVolumes(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)), conversion_(frameworks_->coreFoundation) {
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    canEnumerate_ = conversion_.isUsable() && cf.retain &&
                    cf.urlEnumeratorCreateForMountedVolumes && cf.urlEnumeratorGetNextURL &&
                    cf.urlCopyFileSystemPath && cf.urlCopyLastPathComponent;
    canAskVolumes_ = conversion_.isUsable() && cf.urlCopyResourcePropertiesForKeys &&
                     cf.arrayCreate && cf.arrayCallBacks;
}

std::optional<std::vector<MountedVolumes::Volume>> MacMountedVolumes::mountedVolumes() {
    const AutoreleasePool pool(frameworks_->objectiveC);
    std::vector<Found> before = std::exchange(found_, {});
    if (!canEnumerate_) return std::nullopt;
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    const RetainedReference enumerator = conversion_.own(
        cf.urlEnumeratorCreateForMountedVolumes(nullptr, cfURLEnumeratorSkipInvisibles, nullptr));
    if (!enumerator) return std::nullopt;
    std::vector<Volume> volumes;
    int unreadable = 0;
    while (unreadable < maxUnreadable) {
        CFTypeRef url = nullptr;
        CFTypeRef error = nullptr;
        const CFIndex result = cf.urlEnumeratorGetNextURL(enumerator.get(), &url, &error);
        if (result == cfURLEnumeratorEnd) {
            if (unreadable > 0) addMissing(std::move(before), volumes);
            return volumes;
        }
        if (result == cfURLEnumeratorError) conversion_.own(error).reset();
        if (result != cfURLEnumeratorSuccess || !add(url, volumes)) ++unreadable;
    }
    found_.clear();
    return std::nullopt;
}

/// An entry that cannot be read may be any of those that were there before. They are asked once
/// more: what has gone does not answer, and is not in the next enumeration's former one.
void MacMountedVolumes::addMissing(std::vector<Found> before, std::vector<Volume>& volumes) {
    for (Found& former : before) {
        const bool isThere = std::any_of(found_.begin(), found_.end(),
                                         [&](const Found& f) { return f.path == former.path; });
        if (isThere || former.wasMissing) continue;
        volumes.push_back({former.path, former.lastPathComponent});
        former.wasMissing = true;
        found_.push_back(std::move(former));
    }
}

bool MacMountedVolumes::add(CFTypeRef url, std::vector<Volume>& volumes) {
    if (!url) return false;
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    const RetainedReference path =
        conversion_.own(cf.urlCopyFileSystemPath(url, cfURLPOSIXPathStyle));
    const RetainedReference name = conversion_.own(cf.urlCopyLastPathComponent(url));
    auto pathText = conversion_.text(path.get());
    if (!pathText || pathText->empty()) return false;
    volumes.push_back({*pathText, conversion_.text(name.get()).value_or("")});
    found_.push_back(
        {std::move(*pathText), volumes.back().lastPathComponent, conversion_.share(url), false});
    return true;
}

RetainedReference MacMountedVolumes::resourceValues(const Volume& volume,
                                                    std::initializer_list<CFTypeRef> keys) const {
    const auto found = std::find_if(found_.begin(), found_.end(),
                                    [&](const Found& f) { return f.path == volume.path; });
    if (!canAskVolumes_ || found == found_.end() || !found->url) return {};
    std::vector<const void*> known;
    std::copy_if(keys.begin(), keys.end(), std::back_inserter(known),
                 [](CFTypeRef key) { return key != nullptr; });
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    const RetainedReference list = conversion_.own(cf.arrayCreate(
        nullptr, known.data(), static_cast<CFIndex>(known.size()), cf.arrayCallBacks));
    if (!list) return {};
    return conversion_.own(
        cf.urlCopyResourcePropertiesForKeys(found->url.get(), list.get(), nullptr));
}

MountedVolumes::Classification MacMountedVolumes::classification(const Volume& volume) {
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference values =
        resourceValues(volume, {cf.volumeIsLocalKey, cf.volumeIsBrowsableKey});
    const auto flag = [&](CFTypeRef key) {
        return conversion_.boolean(conversion_.dictionaryEntry(values.get(), key));
    };
    return {flag(cf.volumeIsLocalKey), flag(cf.volumeIsBrowsableKey)};
}

MountedVolumes::Details MacMountedVolumes::details(const Volume& volume) {
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference values = resourceValues(
        volume, {cf.volumeNameKey, cf.volumeTotalCapacityKey, cf.volumeAvailableCapacityKey,
                 cf.volumeIsInternalKey, cf.volumeIsRemovableKey, cf.volumeIsReadOnlyKey});
    const auto entry = [&](CFTypeRef key) {
        return conversion_.dictionaryEntry(values.get(), key);
    };
    return {conversion_.text(entry(cf.volumeNameKey)),
            conversion_.integer(entry(cf.volumeTotalCapacityKey)),
            conversion_.integer(entry(cf.volumeAvailableCapacityKey)),
            conversion_.boolean(entry(cf.volumeIsInternalKey)),
            conversion_.boolean(entry(cf.volumeIsRemovableKey)),
            conversion_.boolean(entry(cf.volumeIsReadOnlyKey))};
}

}  // namespace vantor
