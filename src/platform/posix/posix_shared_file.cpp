#include "platform/posix/posix_shared_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/file_descriptor.h"
#include "platform/posix/file_error.h"

namespace vantor {

namespace {

constexpr int maxFilesAside = 100;
constexpr std::chrono::milliseconds lockInterval{10};

/// Not to be waited for, whatever has the name: opening a pipe waits for its other end.
FileDescriptor openWithoutWaiting(const std::filesystem::path& path, int& error) {
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file) {
        error = errno == ENXIO ? notAnOrdinaryFile : errno;
        return file;
    }
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        error = errno;
    } else if (S_ISDIR(status.st_mode)) {
        error = EISDIR;
    } else if (!S_ISREG(status.st_mode)) {
        error = notAnOrdinaryFile;
    }
    return file;
}

int readUpTo(std::size_t most, int file, std::string& bytes) {
    std::array<char, 4096> room{};
    while (bytes.size() < most) {
        const std::size_t next = std::min(room.size(), most - bytes.size());
        const ssize_t count = ::read(file, room.data(), next);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) break;
        bytes.append(room.data(), static_cast<std::size_t>(count));
    }
    return 0;
}

/// Folders for preferences are their owner's alone where they have to be made.
int makeOwnFolder(const std::filesystem::path& folder) {
    if (folder.empty() || ::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST) return 0;
    const auto parent = folder.parent_path();
    if (errno != ENOENT || parent == folder) return errno;
    if (const int error = makeOwnFolder(parent)) return error;
    return ::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST ? 0 : errno;
}

std::filesystem::path behindLinks(const std::filesystem::path& path) {
    std::error_code error;
    auto target = std::filesystem::canonical(path, error);
    return error ? path : target;
}

/// Without the first sentence, which names the file.
DescribedError reasonAlone(DescribedError error, const std::filesystem::path& path) {
    const std::string opening = '"' + path.filename().native() + "\" could not be saved. ";
    if (error.description.starts_with(opening)) error.description.erase(0, opening.size());
    return error;
}

/// Absent where none is to be had in time.
FileDescriptor lockedFolder(const std::filesystem::path& path, std::chrono::milliseconds patience) {
    const auto parent = behindLinks(path).parent_path();
    const char* const name = parent.empty() ? "." : parent.c_str();
    FileDescriptor folder(::open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const auto end = std::chrono::steady_clock::now() + patience;
    while (folder && ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() >= end)
            return {};
        std::this_thread::sleep_for(lockInterval);
    }
    return folder;
}

}  // namespace

PosixSharedFile::PosixSharedFile(std::filesystem::path path,
                                 std::shared_ptr<AtomicFileWriter> writer,
                                 std::chrono::milliseconds patience)
    : path_(std::move(path)), writer_(std::move(writer)), patience_(patience) {}

SharedFile::Reading PosixSharedFile::read(std::size_t most) {
    int error = 0;
    const FileDescriptor file = openWithoutWaiting(path_, error);
    if (error == ENOENT || error == ENOTDIR) return {};
    std::string bytes;
    if (error == 0) error = readUpTo(most, file.get(), bytes);
    if (error != 0) return {std::nullopt, because(error)};
    return {std::move(bytes), std::nullopt};
}

std::optional<DescribedError> PosixSharedFile::write(std::string_view bytes) {
    if (const int error = makeOwnFolder(path_.parent_path())) return because(error);
    auto failure = writer_->write(path_, bytes);
    if (failure) failure = reasonAlone(std::move(*failure), path_);
    return failure;
}

std::optional<DescribedError> PosixSharedFile::remove() {
    if (::unlink(path_.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR) return std::nullopt;
    return because(errno);
}

std::optional<DescribedError> PosixSharedFile::putAside() {
    const auto target = behindLinks(path_);
    for (int i = 1; i <= maxFilesAside; ++i) {
        const std::string aside = target.native() + ".damaged-" + std::to_string(i);
        struct stat taken {};
        if (::lstat(aside.c_str(), &taken) == 0) continue;
        if (errno != ENOENT || ::rename(target.c_str(), aside.c_str()) != 0) return because(errno);
        return std::nullopt;
    }
    return DescribedError{"Too many damaged files are kept there."};
}

void PosixSharedFile::withoutOthers(const std::function<void()>& work) {
    const FileDescriptor lock = lockedFolder(path_, patience_);
    work();
}

DescribedError PosixSharedFile::because(int error) const {
    return reasonAlone(describeFileError(error, path_), path_);
}

}  // namespace vantor
