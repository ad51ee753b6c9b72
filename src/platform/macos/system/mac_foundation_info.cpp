#include "platform/macos/system/mac_foundation_info.h"

#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

namespace {

std::optional<int> toInt(std::int64_t number) {
    return std::in_range<int>(number) ? std::optional(static_cast<int>(number)) : std::nullopt;
}

}  // namespace

MacFoundationInfo::MacFoundationInfo(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)),
      conversion_(frameworks_->coreFoundation),
      messages_(frameworks_->objectiveC) {}

ObjectMessages::Object MacFoundationInfo::processInfo() const {
    return messages_.object(messages_.classNamed("NSProcessInfo"), "processInfo");
}

std::optional<int> MacFoundationInfo::thermalState() const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    const auto state = messages_.integer(processInfo(), "thermalState");
    return state ? toInt(*state) : std::nullopt;
}

std::optional<bool> MacFoundationInfo::isLowPowerModeEnabled() const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    return messages_.truth(processInfo(), "isLowPowerModeEnabled");
}

std::optional<ProcessInfo::Version> MacFoundationInfo::operatingSystemVersion() const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    const auto version = messages_.version(processInfo(), "operatingSystemVersion");
    if (!version) return std::nullopt;
    const auto major = toInt(version->major);
    const auto minor = toInt(version->minor);
    const auto patch = toInt(version->patch);
    if (!major || !minor || !patch) return std::nullopt;
    return ProcessInfo::Version{*major, *minor, *patch};
}

bool MacFoundationInfo::hostName(std::string& name) const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    return conversion_.copyText(messages_.object(processInfo(), "hostName"), name);
}

std::optional<std::int64_t> MacFoundationInfo::count(const char* method) const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    const auto number = messages_.unsignedInteger(processInfo(), method);
    if (!number || *number == 0 || !std::in_range<std::int64_t>(*number)) return std::nullopt;
    return static_cast<std::int64_t>(*number);
}

std::optional<std::int64_t> MacFoundationInfo::processorCount() const {
    return count("processorCount");
}

std::optional<std::int64_t> MacFoundationInfo::activeProcessorCount() const {
    return count("activeProcessorCount");
}

std::optional<std::uint64_t> MacFoundationInfo::physicalMemory() const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    return messages_.unsignedInteger(processInfo(), "physicalMemory");
}

std::optional<double> MacFoundationInfo::systemUptime() const {
    const AutoreleasePool pool(frameworks_->objectiveC);
    return messages_.floating(processInfo(), "systemUptime");
}

}  // namespace vantor
