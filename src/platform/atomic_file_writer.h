#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "model/described_error.h"

namespace vantor {

/// Writes whole files: readers find the old one or the new one, never a part. Any thread;
/// may take as long as the disk does.
class AtomicFileWriter {
  public:
    virtual ~AtomicFileWriter() = default;

    /// Absent when `destination` now holds exactly `bytes`. Otherwise what was there before is as
    /// it was, nothing else is left behind, and the error says why.
    virtual std::optional<DescribedError> write(const std::filesystem::path& destination,
                                                std::string_view bytes) = 0;
};

}  // namespace vantor
