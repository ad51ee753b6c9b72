#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor {

/// The file system's label from a text of /run/udev/data; absent when there is none, or an empty
/// one. Pure.
std::optional<std::string> labelInUdevData(std::string_view text);

}  // namespace vantor
