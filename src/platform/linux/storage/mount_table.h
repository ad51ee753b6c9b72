#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantor {

/// One line of /proc/self/mountinfo (https://docs.kernel.org/filesystems/proc.html, section 3.5).
/// Its texts are parts of the table's, with blanks and such still written as "\040". The kernel
/// writes the same text always the same way: to compare them they may stay as they are.
struct Mount {
    std::uint64_t id = 0;
    std::uint64_t parent = 0;  ///< of the mount that this one lies in; may be unknown to the table
    std::uint32_t major = 0;   ///< 0 = no block device
    std::uint32_t minor = 0;
    std::string_view root;  ///< which folder of the file system is mounted
    std::string_view mountPoint;
    std::string_view options;
    std::string_view type;    ///< with its subtype, e.g. "fuse.sshfs"
    std::string_view source;  ///< may be empty
    std::string_view superOptions;

    bool isRoot() const { return mountPoint == "/"; }
};

/// Fills `mounts` with the lines in their order, leaving out malformed ones. Pure; `text` must
/// outlive the mounts.
void parseMountTable(std::string_view text, std::vector<Mount>& mounts);

/// A text of the table as it really is. Pure.
std::string unescapeMountText(std::string_view text);

}  // namespace vantor
