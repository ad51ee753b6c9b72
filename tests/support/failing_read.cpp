#include "support/failing_read.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <utility>

namespace vantor {

namespace {

struct Fault {
    dev_t device = 0;
    ino_t file = 0;
    int error = 0;
    int count = 0;
    std::function<void()> then;
};

// The linker hands all calls to one function, which can be told of nothing else.
std::mutex lock;
std::map<int, Fault> faults;
std::atomic<bool> isAnyThere = false;

std::optional<int> errorOf(int fd) {
    struct stat status {};
    if (!isAnyThere || ::fstat(fd, &status) != 0) return std::nullopt;
    std::function<void()> then;
    int error = 0;
    {
        const std::lock_guard guard(lock);
        const auto found = std::find_if(faults.begin(), faults.end(), [&](const auto& entry) {
            return entry.second.device == status.st_dev && entry.second.file == status.st_ino;
        });
        if (found == faults.end()) return std::nullopt;
        ++found->second.count;
        error = found->second.error;
        then = found->second.then;
    }
    if (then) then();
    return error;
}

}  // namespace

FailingRead::FailingRead(const std::filesystem::path& file, int error, std::function<void()> then) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0) throw std::runtime_error("no " + file.string());
    const std::lock_guard guard(lock);
    number_ = faults.empty() ? 0 : faults.rbegin()->first + 1;
    faults[number_] = {status.st_dev, status.st_ino, error, 0, std::move(then)};
    isAnyThere = true;
}

FailingRead::~FailingRead() {
    const std::lock_guard guard(lock);
    faults.erase(number_);
    isAnyThere = !faults.empty();
}

int FailingRead::count() const {
    const std::lock_guard guard(lock);
    return faults.at(number_).count;
}

}  // namespace vantor

extern "C" {

ssize_t __real_pread(int fd, void* buffer, size_t size, off_t place);
ssize_t __wrap_pread(int fd, void* buffer, size_t size, off_t place);

ssize_t __wrap_pread(int fd, void* buffer, size_t size, off_t place) {
    if (const auto error = vantor::errorOf(fd)) {
        errno = *error;
        return -1;
    }
    return __real_pread(fd, buffer, size, place);
}
}
