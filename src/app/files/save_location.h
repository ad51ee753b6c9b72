#pragma once

#include <QString>

#include <filesystem>

/// Names of files and folders as users type them. None of these accesses the disk.
namespace vantor {

/// The toolkit's name of a file, as the system's bytes.
std::filesystem::path pathOf(const QString& name);

/// The same file for display; what is not UTF-8 or cannot be shown is replaced.
QString shownPath(const std::filesystem::path& path);

/// The folder that `typed` names: as it is, within the home folder where it begins with "~", else
/// within `base`. Without "." and "..", and without a slash at its end.
std::filesystem::path folderOf(const QString& typed, const std::filesystem::path& base);

/// The same for a file, which gets `ending` where it has none. Empty where no name is left.
std::filesystem::path fileOf(const QString& typed, const std::filesystem::path& base,
                             const QString& ending);

}  // namespace vantor
