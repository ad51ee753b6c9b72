#include "app/files/folder_looks.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

namespace vantor {

namespace {

using EntryKind = FolderEntry::Kind;

struct FolderCloser {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

bool hasEnding(const std::string& name, const std::string& ending) {
    return ending.empty() ||
           QFile::decodeName(name.c_str())
               .endsWith(u'.' + QString::fromStdString(ending), Qt::CaseInsensitive);
}

std::optional<EntryKind> kindOfEntry(const dirent& entry) {
    switch (entry.d_type) {
        case DT_DIR:
            return EntryKind::folder;
        case DT_REG:
            return EntryKind::file;
        case DT_LNK:
        case DT_UNKNOWN:  // on file systems without types in their listing
            return EntryKind::link;
        default:
            return std::nullopt;
    }
}

void sortEntries(std::vector<FolderEntry>& entries) {
    QCollator order;
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, std::size_t>> keys;
    keys.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        keys.emplace_back(order.sortKey(QFile::decodeName(entries[i].name.c_str())), i);
    const auto isFile = [&](std::size_t i) { return entries[i].kind == EntryKind::file; };
    std::ranges::stable_sort(keys, [&](const auto& one, const auto& other) {
        if (isFile(one.second) != isFile(other.second)) return isFile(other.second);
        return one.first < other.first;
    });
    std::vector<FolderEntry> sorted;
    sorted.reserve(entries.size());
    for (const auto& [key, i] : keys)
        sorted.push_back(std::move(entries[i]));
    entries = std::move(sorted);
}

bool leadsToFolder(const std::filesystem::path& path) {
    struct stat found {};
    return ::stat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

bool hasEntry(const std::filesystem::path& path) {
    struct stat found {};
    return ::lstat(path.c_str(), &found) == 0;
}

}  // namespace

FolderContents readFolder(const std::filesystem::path& folder, const std::string& ending) {
    FolderContents contents;
    const std::unique_ptr<DIR, FolderCloser> open(::opendir(folder.c_str()));
    if (!open) {
        contents.error = errno;
        return contents;
    }
    while (const dirent* const entry = ::readdir(open.get())) {
        std::string name = entry->d_name;
        const auto kind = kindOfEntry(*entry);
        if (name.starts_with('.') || !kind) continue;
        if (*kind == EntryKind::file && !hasEnding(name, ending)) continue;
        if (contents.entries.size() == FolderContents::maxEntries) {
            contents.isWhole = false;
            break;
        }
        contents.entries.push_back({std::move(name), *kind});
    }
    sortEntries(contents.entries);
    contents.isWritable = ::access(folder.c_str(), W_OK | X_OK) == 0;
    return contents;
}

std::vector<FolderEntry> followLinks(const std::filesystem::path& folder,
                                     std::vector<FolderEntry> entries, const std::string& ending) {
    std::erase_if(entries, [&](FolderEntry& entry) {
        if (entry.kind != EntryKind::link) return false;
        struct stat found {};
        if (::stat((folder / entry.name).c_str(), &found) != 0) return true;
        entry.kind = S_ISDIR(found.st_mode) ? EntryKind::folder : EntryKind::file;
        return !S_ISDIR(found.st_mode) &&
               !(S_ISREG(found.st_mode) && hasEnding(entry.name, ending));
    });
    sortEntries(entries);
    return entries;
}

DestinationLook lookAtDestination(const std::filesystem::path& file) {
    struct stat found {};
    if (::stat(file.c_str(), &found) == 0) {
        if (S_ISDIR(found.st_mode)) return {Destination::folder, 0};
        return {S_ISREG(found.st_mode) ? Destination::file : Destination::other, 0};
    }
    if (errno != ENOENT) return {Destination::unknown, errno};
    if (leadsToFolder(file.parent_path())) return {Destination::free, 0};
    return {Destination::noFolder, 0};
}

int makeFolder(const std::filesystem::path& folder) {
    return ::mkdir(folder.c_str(), 0777) == 0 ? 0 : errno;
}

std::vector<SavePlace> findSavePlaces() {
    const std::filesystem::path home = QFile::encodeName(QDir::homePath()).toStdString();
    std::vector<SavePlace> places;
    if (leadsToFolder(home)) places.push_back({"Home", home});
    for (const auto& [name, location] :
         {std::pair{"Documents", QStandardPaths::DocumentsLocation},
          std::pair{"Desktop", QStandardPaths::DesktopLocation},
          std::pair{"Downloads", QStandardPaths::DownloadLocation}}) {
        const std::filesystem::path folder =
            QFile::encodeName(QStandardPaths::writableLocation(location)).toStdString();
        const bool isKnown = std::ranges::any_of(
            places, [&](const SavePlace& place) { return place.folder == folder; });
        if (!folder.empty() && !isKnown && leadsToFolder(folder)) places.push_back({name, folder});
    }
    // There must be one to begin at, also where the home folder is away or does not answer.
    if (places.empty()) places.push_back({"Computer", "/"});
    return places;
}

std::filesystem::path completedName(const std::filesystem::path& file, const std::string& ending) {
    if (ending.empty() || file.has_extension() || hasEntry(file)) return file;
    std::filesystem::path completed = file;
    completed += '.' + ending;
    return hasEntry(completed) ? file : completed;
}

}  // namespace vantor
