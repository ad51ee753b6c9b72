#include "platform/posix/temporary_file.h"

#include <fcntl.h>
#include <sys/random.h>

#include <array>
#include <cerrno>
#include <cstdint>

namespace vantor {

namespace {

constexpr int maxAttempts = 8;  // at a name that is not taken
constexpr std::string_view passingPrefix = ".vantor-";
constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr std::size_t randomBytes = 12;

/// Calls again until no signal comes in between; then gives the errno.
template <class Call>
int untilUninterrupted(Call call) {
    while (call() < 0) {
        if (errno != EINTR) return errno;
    }
    return 0;
}

std::string hiddenName() {
    std::array<std::uint8_t, randomBytes> random{};
    if (::getentropy(random.data(), random.size()) != 0) return {};
    std::string name(passingPrefix);
    for (const std::uint8_t byte : random)
        (name += hexDigits[byte >> 4]) += hexDigits[byte & 0xF];
    return name;
}

/// Tries names until one is free.
template <class Call>
int underHiddenName(std::string& name, Call call) {
    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        const std::string candidate = hiddenName();
        if (candidate.empty()) return errno;
        const int error = untilUninterrupted([&] { return call(candidate.c_str()); });
        if (error == 0) name = candidate;
        if (error != EEXIST) return error;
    }
    return EEXIST;
}

}  // namespace

TemporaryFile::~TemporaryFile() {
    if (!name_.empty()) calls_.remove(folder_, name_.c_str());
    if (file_ >= 0) calls_.close(file_);
}

bool TemporaryFile::isPassingName(std::string_view name) {
    if (!name.starts_with(passingPrefix)) return false;
    name.remove_prefix(passingPrefix.size());
    return name.size() == 2 * randomBytes &&
           name.find_first_not_of(hexDigits) == std::string_view::npos;
}

int TemporaryFile::create(Kind kind) {
    const int error =
        kind == Kind::nameless
            ? untilUninterrupted([&] { return file_ = calls_.createNameless(folder_); })
            : underHiddenName(
                  name_, [&](const char* name) { return file_ = calls_.create(folder_, name); });
    // Some file systems know no locks, and nothing is removed there.
    if (error == 0) calls_.lock(file_);
    return error;
}

int TemporaryFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = calls_.write(file_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return errno;
        if (written == 0) return EIO;  // no disk does that; without this one would wait for ever
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

int TemporaryFile::sync() {
    const int error = untilUninterrupted([&] { return calls_.sync(file_); });
    // Some file systems have nothing to wait for and say so.
    return error == EINVAL || error == ENOTSUP ? 0 : error;
}

int TemporaryFile::flush() {
    // A network's file system may tell only at a close that the data did not arrive, at that of any
    // descriptor; the last one keeps the lock.
    const int other = ::fcntl(file_, F_DUPFD_CLOEXEC, 0);
    if (other < 0) return 0;  // out of descriptors: the disk has said that it has the file
    // Interrupted or not, the descriptor is gone.
    const bool wentWell = calls_.close(other) == 0 || errno == EINTR;
    return wentWell ? 0 : errno;
}

int TemporaryFile::takePlace(const std::string& name) {
    return untilUninterrupted([&] { return calls_.link(file_, folder_, name.c_str()); });
}

int TemporaryFile::giveName() {
    if (!name_.empty()) return 0;
    return underHiddenName(name_,
                           [&](const char* name) { return calls_.link(file_, folder_, name); });
}

int TemporaryFile::replace(const std::string& name) {
    const int error =
        untilUninterrupted([&] { return calls_.rename(folder_, name_.c_str(), name.c_str()); });
    if (error == 0) name_.clear();
    return error;
}

}  // namespace vantor
