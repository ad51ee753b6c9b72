#include "platform/posix/posix_atomic_file_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <optional>
#include <string>
#include <system_error>

#include "platform/file_descriptor.h"
#include "platform/posix/file_error.h"
#include "platform/posix/leftover_files.h"
#include "platform/posix/temporary_file.h"

namespace vantor {

namespace {

constexpr int maxLinks = 40;  // what the kernel follows, too

/// Where the data goes: an open folder and a name in it.
struct Target {
    FileDescriptor folder;
    bool canSyncFolder = true;
    std::string name;
    std::optional<struct stat> old;
};

int followLinks(std::filesystem::path& destination) {
    for (int followed = 0; followed < maxLinks; ++followed) {
        std::error_code error;
        const auto link = std::filesystem::read_symlink(destination, error);
        if (error) return 0;  // no link, or something that opening its folder will complain of
        destination = destination.parent_path() / link;
    }
    return ELOOP;
}

int openFolder(const std::filesystem::path& destination, Target& target) {
    const auto parent = destination.parent_path();
    const char* const path = parent.empty() ? "." : parent.c_str();
    target.folder = FileDescriptor(::open(path, O_DIRECTORY | O_CLOEXEC | O_RDONLY));
    if (!target.folder && errno == EACCES) {
        // One that can be written to but not listed.
        target.canSyncFolder = false;
        target.folder = FileDescriptor(FileCalls::openUnlisted(path));
    }
    return target.folder ? 0 : errno;
}

int lookAtOldFile(Target& target) {
    struct stat old {};
    const int folder = target.folder.get();
    if (::fstatat(folder, target.name.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT ? 0 : errno;
    if (S_ISDIR(old.st_mode)) return EISDIR;
    if (!S_ISREG(old.st_mode)) return notAnOrdinaryFile;
    if (::faccessat(folder, target.name.c_str(), W_OK, AT_EACCESS) != 0) return errno;
    target.old = old;
    return 0;
}

int findTarget(std::filesystem::path destination, Target& target) {
    if (const int error = followLinks(destination)) return error;
    target.name = destination.filename().native();
    if (target.name.empty() || target.name == "." || target.name == "..") return EISDIR;
    if (const int error = openFolder(destination, target)) return error;
    return lookAtOldFile(target);
}

/// What an old file's owner allowed is allowed of the new one. What cannot be had is done without:
/// some file systems know neither owners nor permissions.
void takeOver(const struct stat& old, FileCalls& calls, int file) {
    constexpr gid_t sameGroup = static_cast<gid_t>(-1);
    constexpr uid_t sameOwner = static_cast<uid_t>(-1);
    struct stat now {};
    if (::fstat(file, &now) != 0) return;
    bool hasGroup = now.st_gid == old.st_gid;
    if (!hasGroup) hasGroup = calls.changeOwner(file, sameOwner, old.st_gid) == 0;
    if (now.st_uid != old.st_uid) calls.changeOwner(file, old.st_uid, sameGroup);
    mode_t mode = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (!hasGroup) {
        const auto ofAll = static_cast<mode_t>((mode & S_IRWXO) << 3);
        const auto ofGroup = static_cast<mode_t>(mode & S_IRWXG & ofAll);
        mode = static_cast<mode_t>((mode & ~static_cast<mode_t>(S_IRWXG)) | ofGroup);
    }
    calls.changeMode(file, mode);
}

struct Outcome {
    int error = 0;
    bool isOfItsKind = false;  ///< that kind of temporary file cannot be had; the other one may
    std::time_t writtenAt = 0;
};

/// By the clock of the disk, which may be another machine's.
std::time_t timeOf(int file) {
    struct stat now {};
    return ::fstat(file, &now) == 0 ? now.st_mtime : 0;
}

Outcome writeBy(TemporaryFile::Kind kind, const Target& target, std::string_view bytes,
                FileCalls& calls) {
    TemporaryFile file(calls, target.folder.get());
    if (const int error = file.create(kind)) return {error, true};
    if (const int error = file.write(bytes)) return {error};
    if (target.old) takeOver(*target.old, calls, file.descriptor());
    if (const int error = file.sync()) return {error};
    if (const int error = file.flush()) return {error};
    const std::time_t now = timeOf(file.descriptor());
    if (!target.old && kind == TemporaryFile::Kind::nameless) {
        // Without a passing name nothing can be left behind, whenever the program is killed.
        const int error = file.takePlace(target.name);
        if (error == 0) return {0, false, now};
        if (error != EEXIST) return {error, true};
    }
    if (const int error = file.giveName()) return {error, true};
    return {file.replace(target.name), false, now};
}

}  // namespace

int PosixAtomicFileWriter::tryToWrite(const std::filesystem::path& destination,
                                      std::string_view bytes) {
    Target target;
    if (const int error = findTarget(destination, target)) return error;
    Outcome outcome = writeBy(TemporaryFile::Kind::nameless, target, bytes, *calls_);
    if (outcome.error != 0 && outcome.isOfItsKind)
        outcome = writeBy(TemporaryFile::Kind::named, target, bytes, *calls_);
    if (outcome.error != 0) return outcome.error;
    // The file is in place; if the folder cannot tell the disk so now, it will do so later.
    if (!target.canSyncFolder) return 0;
    calls_->sync(target.folder.get());
    LeftoverFiles::remove(*calls_, target.folder.get(), outcome.writtenAt);
    return 0;
}

std::optional<DescribedError> PosixAtomicFileWriter::write(const std::filesystem::path& destination,
                                                           std::string_view bytes) {
    int error = 0;
    FileCalls::withoutSizeSignal([&] { error = tryToWrite(destination, bytes); });
    if (error != 0) return describeFileError(error, destination);
    return std::nullopt;
}

}  // namespace vantor
