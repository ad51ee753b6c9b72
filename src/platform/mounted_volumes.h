#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantor {

/// The mounted volumes and what is known of each. One thread at a time; any call may hang for as
/// long as a file system does.
///
/// macOS: the file manager's enumeration and the volumes' resource values. Linux:
/// /proc/self/mountinfo and statvfs; network and pseudo file systems are told from the table alone
/// and never touched.
class MountedVolumes {
  public:
    struct Volume {
        std::string path;
        std::string lastPathComponent;  ///< may be empty
    };
    /// What decides whether a volume is listed; absent = unknown.
    struct Classification {
        std::optional<bool> isLocal;
        std::optional<bool> isBrowsable;
    };
    /// Each absent when unknown; all absent when the query fails.
    struct Details {
        std::optional<std::string> name;
        std::optional<std::int64_t> totalCapacity;      ///< bytes
        std::optional<std::int64_t> availableCapacity;  ///< bytes, for a user without privileges
        std::optional<bool> isInternal;
        std::optional<bool> isRemovable;
        std::optional<bool> isReadOnly;
    };

    virtual ~MountedVolumes() = default;

    /// The volumes that are not hidden; absent when there is no answer.
    virtual std::optional<std::vector<Volume>> mountedVolumes() = 0;
    virtual Classification classification(const Volume& volume) = 0;
    virtual Details details(const Volume& volume) = 0;
};

}  // namespace vantor
