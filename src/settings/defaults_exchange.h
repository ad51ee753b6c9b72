#pragma once

#include <optional>

#include "model/described_error.h"
#include "platform/shared_file.h"
#include "settings/ini_text.h"

namespace vantor {

/// The result of reading or writing a file of preferences.
struct DefaultsOutcome {
    std::optional<DefaultsValues> values;  ///< what the file holds now, where that is known
    std::optional<DescribedError> error;   ///< the reason alone
};

// Both take as long as the disk does: any thread but the main one. A damaged file is put aside;
// where that fails, it stays, and that is the error.

DefaultsOutcome readDefaults(SharedFile& file);

/// Merges `changes` into the file's present content, so that what another program has written
/// meanwhile is kept. Writes nothing where that changes nothing.
DefaultsOutcome mergeDefaults(SharedFile& file, const DefaultsValues& changes);

}  // namespace vantor
