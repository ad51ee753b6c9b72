#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "model/field.h"

namespace vantor {

/// One mounted volume, identified by its mount path.
struct VolumeStats {
    std::string name;  ///< display name
    std::string path;  ///< where it is mounted; the record's identity
    std::uint64_t totalBytes = 0;
    std::uint64_t availableBytes = 0;
    bool isInternal = false;
    bool isRemovable = false;
    bool isReadOnly = false;

    bool operator==(const VolumeStats&) const = default;

    /// Identifies this row across refreshes; equality compares everything.
    const std::string& identity() const { return path; }
};

template <>
inline constexpr auto fieldsOf<VolumeStats> =
    std::tuple{Field{"name", &VolumeStats::name},
               Field{"path", &VolumeStats::path},
               Field{"totalBytes", &VolumeStats::totalBytes},
               Field{"availableBytes", &VolumeStats::availableBytes},
               Field{"isInternal", &VolumeStats::isInternal},
               Field{"isRemovable", &VolumeStats::isRemovable},
               Field{"isReadOnly", &VolumeStats::isReadOnly}};

}  // namespace vantor
