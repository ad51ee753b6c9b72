#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/timestamp.h"

namespace vantor {

/// UTC with whole seconds, e.g. 2026-11-14T17:53:42Z.
std::string encodeTimestamp(Timestamp timestamp);

/// The reverse of encodeTimestamp; absent for any other form or an impossible date.
std::optional<Timestamp> decodeTimestamp(std::string_view text);

}  // namespace vantor
