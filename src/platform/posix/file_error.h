#pragma once

#include <filesystem>

#include "model/described_error.h"

namespace vantor {

/// In place of an errno: what has the destination's name is neither a file nor a folder.
inline constexpr int notAnOrdinaryFile = -1;

/// Why `destination` could not be written, by the errno of what failed: "NAME" could not be saved,
/// and the reason in plain words. A number without such a text has the system's own.
DescribedError describeFileError(int error, const std::filesystem::path& destination);

}  // namespace vantor
