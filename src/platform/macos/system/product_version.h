#pragma once

#include <optional>
#include <string_view>

#include "platform/process_info.h"

namespace vantor {

/// A version as the kernel tells it ("14.5.1", "11.0"): two or three numbers between dots, the
/// third 0 where it is missing. Absent when it is anything else. Pure.
std::optional<ProcessInfo::Version> parseProductVersion(std::string_view text);

/// Whether `version` is that one or a later one. Pure.
bool isAtLeast(const ProcessInfo::Version& version, const ProcessInfo::Version& wanted);

}  // namespace vantor
