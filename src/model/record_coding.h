#pragma once

#include <nlohmann/json_fwd.hpp>

#include <optional>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

/// Records as JSON values, each field under its own name. A field that always has a value is always
/// written; an optional one only when present, and a missing key reads as absent.
///
/// `Record` is any record of this folder (the definitions are instantiated for each of them).
/// Pure functions, any thread.
namespace vantor {

/// Absent when a floating value anywhere in the record is infinite or not a number: JSON cannot
/// represent those, and any other value would be wrong.
template <class Record>
std::optional<nlohmann::json> encode(const Record& record);

/// Absent when a field that always has a value is missing, or any field has another type or does
/// not fit its own. Unknown keys are ignored.
template <class Record>
std::optional<Record> decode(const nlohmann::json& value);

}  // namespace vantor
