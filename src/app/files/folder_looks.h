#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// What a save dialog asks of the disk. Each of these may block for ever where a disk hangs: not to
/// be called on the main thread. No file is opened.
namespace vantor {

struct FolderEntry {
    enum class Kind { folder, file, link };

    std::string name;  ///< the system's bytes
    Kind kind = Kind::file;

    bool operator==(const FolderEntry&) const = default;
};

struct FolderContents {
    static constexpr std::size_t maxEntries = 5000;

    int error = 0;                     ///< errno; there is nothing else then
    std::vector<FolderEntry> entries;  ///< folders first, each in the order of the user's language
    bool isWhole = true;               ///< false: there are more than `maxEntries`
    bool isWritable = true;
};

/// Folders, and files that end with `ending` ("json"; empty: all); hidden ones left out. Links are
/// not followed: one into a disk that hangs must not hide what is beside it.
FolderContents readFolder(const std::filesystem::path& folder, const std::string& ending);

/// The same entries, with links as what they lead to; those that lead nowhere, or to a file of
/// another ending, are gone.
std::vector<FolderEntry> followLinks(const std::filesystem::path& folder,
                                     std::vector<FolderEntry> entries, const std::string& ending);

/// What exists where a file is to be saved.
enum class Destination { free, file, folder, other, noFolder, unknown };

struct DestinationLook {
    Destination found = Destination::unknown;
    int error = 0;  ///< errno where it is unknown
};

DestinationLook lookAtDestination(const std::filesystem::path& file);

/// The errno of what failed; 0 when the folder has been made.
int makeFolder(const std::filesystem::path& folder);

/// A folder that users save in, with its common name.
struct SavePlace {
    std::string name;
    std::filesystem::path folder;

    bool operator==(const SavePlace&) const = default;
};

/// The user's own that are there, home first; the whole disk where there is none.
std::vector<SavePlace> findSavePlaces();

/// `file` with the ending of its kind where it has none; unless that names another existing file,
/// about which the user was not asked, or the shorter name exists, about which the user was.
std::filesystem::path completedName(const std::filesystem::path& file, const std::string& ending);

}  // namespace vantor
