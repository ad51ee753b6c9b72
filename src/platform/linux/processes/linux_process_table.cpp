#include "platform/linux/processes/linux_process_table.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <climits>

#include "model/checked.h"
#include "platform/linux/processes/process_arguments.h"
#include "platform/linux/processes/process_stat.h"
#include "platform/time_units.h"

namespace vantor {

namespace {

// A stat line is some 300 bytes; a name has at most 64 of them, kernel workers included.
constexpr std::size_t fileBufferSize = 4096;
// Seconds. Sizes of sleeping processes are the dearest thing after all clocks: of more than 2,000
// processes the small ones wait for longer.
constexpr double residentPeriod = 5.0;
constexpr double longestResidentPeriod = 30.0;
constexpr double calmResidentPeriod = 120.0;
constexpr double residentsPerSecond = 400;
constexpr std::uint64_t largeResident = std::uint64_t{16} << 20U;
constexpr std::uint64_t microsecondsPerSecond = 1'000'000;

/// "PID/file" relative to /proc, without touching the heap.
class ProcessPath {
  public:
    ProcessPath(std::int32_t pid, std::string_view file) {
        char* at = std::to_chars(text_.data(), text_.data() + text_.size(), pid).ptr;
        *at++ = '/';
        *std::copy(file.begin(), file.end(), at) = '\0';
    }
    const char* c_str() const { return text_.data(); }

  private:
    std::array<char, 32> text_{};
};

std::uint64_t positive(long value, std::uint64_t otherwise) {
    return value > 0 ? static_cast<std::uint64_t>(value) : otherwise;
}

/// Whether the /proc there is ours: in another one's, our clocks would be those of strangers.
bool isOwnProc(const FileDescriptor& proc) {
    std::array<char, 16> text{};
    const ssize_t count = ::readlinkat(proc.get(), "self", text.data(), text.size());
    std::int32_t pid = 0;
    if (count < 1) return false;
    const char* const end = text.data() + count;
    const auto [rest, error] = std::from_chars(text.data(), end, pid);
    return error == std::errc{} && rest == end && pid == ::getpid();
}

/// Of descriptors or memory: that says nothing of the process that was asked for.
bool isShortage(int error) {
    return error == EMFILE || error == ENFILE || error == ENOMEM;
}

/// Of what belongs to another user.
bool isRefusal(int error) {
    return error == EACCES || error == EPERM;
}

/// Not all on the same pass: processes seen for the first time together come due one after another.
double firstPart(std::int32_t pid) {
    return (1 + pid % 128) / 128.0;
}

}  // namespace

LinuxProcessTable::LinuxProcessTable(const LinuxRoots& roots, std::shared_ptr<ProcessClocks> clocks)
    : proc_(::open(roots.proc.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      clocks_(std::move(clocks)),
      clocksFit_(isOwnProc(proc_) && clocks_->read(0).has_value()),
      tracker_(roots, clocksFit_ ? clocks_ : nullptr),
      reclaim_(roots),
      buffer_(fileBufferSize),
      pageSize_(positive(::sysconf(_SC_PAGESIZE), 4096)),
      ticksPerSecond_(positive(::sysconf(_SC_CLK_TCK), 100)) {}

bool LinuxProcessTable::refreshListing() {
    now_ = clocks_->now();
    gone_.clear();
    for (const Known& known : known_) {
        if (known.isGone) gone_.push_back(known.pid);
    }
    const bool isCounted = tracker_.update(now_, gone_);
    adoptListing();
    watchReclaim();
    return isCounted;
}

/// What was read in calm may have changed when that is over, and is not due for long.
void LinuxProcessTable::watchReclaim() {
    const bool wasCalm = isCalm_;
    isCalm_ = clocksFit_ && reclaim_.isCalm(now_);
    if (!wasCalm || isCalm_) return;
    for (Known& known : known_) {
        const double soon = now_ + firstPart(known.pid) * residentPeriodOf(known);
        known.residentDue = std::min(known.residentDue, soon);
    }
}

/// Both lists ascend, so one pass over both finds new and ended processes.
void LinuxProcessTable::adoptListing() {
    cursor_ = 0;
    // Nearly always nothing has changed.
    const auto pids = tracker_.pids();
    const auto isSame = [](const Known& known, std::int32_t pid) {
        return known.pid == pid && !known.isGone;
    };
    if (std::equal(known_.begin(), known_.end(), pids.begin(), pids.end(), isSame)) return;
    nextKnown_.clear();
    nextKnown_.reserve(tracker_.pids().size());
    auto old = known_.begin();
    for (const std::int32_t pid : tracker_.pids()) {
        while (old != known_.end() && old->pid < pid)
            ++old;
        if (old != known_.end() && old->pid == pid && !old->isGone) {
            nextKnown_.push_back(*old);
        } else {
            nextKnown_.push_back({});
            nextKnown_.back().pid = pid;
        }
    }
    known_.swap(nextKnown_);
}

int LinuxProcessTable::listAllPIDs(std::span<std::int32_t> buffer) {
    if (buffer.empty() || !isListingFresh_) {
        if (!refreshListing()) return -1;
    }
    const auto pids = tracker_.pids();
    isListingFresh_ = buffer.empty();
    if (buffer.empty()) return static_cast<int>(std::min<std::size_t>(pids.size(), INT_MAX));
    const std::size_t count = std::min(pids.size(), buffer.size());
    std::copy_n(pids.begin(), count, buffer.begin());
    return static_cast<int>(count);
}

LinuxProcessTable::Known* LinuxProcessTable::find(std::int32_t pid) {
    // The same one again, or the next.
    if (cursor_ + 1 < known_.size() && known_[cursor_].pid < pid) ++cursor_;
    if (cursor_ >= known_.size() || known_[cursor_].pid != pid) {
        const auto found =
            std::lower_bound(known_.begin(), known_.end(), pid,
                             [](const Known& k, std::int32_t p) { return k.pid < p; });
        if (found == known_.end() || found->pid != pid) return nullptr;
        cursor_ = static_cast<std::size_t>(found - known_.begin());
    }
    return &known_[cursor_];
}

int LinuxProcessTable::taskAllInfo(std::int32_t pid, TaskAllInfo& info) {
    Known unlisted;
    unlisted.pid = pid;
    Known* const listed = find(pid);
    Known& known = listed ? *listed : unlisted;
    const auto clock = clocksFit_ ? clocks_->read(pid) : std::nullopt;
    std::uint64_t counted = 0;
    hasShortage_ = false;
    if (!update(known, clock, counted)) {
        known.isGone = !hasShortage_;
        return 0;
    }
    known.isGone = false;
    info.startSeconds = known.startTicks / ticksPerSecond_;
    info.startMicroseconds =
        known.startTicks % ticksPerSecond_ * (microsecondsPerSecond / ticksPerSecond_);
    info.residentSize = known.residentBytes;
    info.totalUser = clock.value_or(counted);
    info.totalSystem = 0;
    return taskAllInfoSize;
}

bool LinuxProcessTable::update(Known& known, std::optional<std::uint64_t> clock,
                               std::uint64_t& counted) {
    const bool hasRun = !known.isRead || !clock || *clock != known.clock;
    const bool isSame = known.isRead && clock && isTheSame(known, *clock);
    known.clock = clock.value_or(0);
    if (hasRun) known.hasRunSincePath = true;
    if (!isSame) {
        known.hasRunSincePath = true;
        return readStat(known, counted);
    }
    const bool isDue = hasRun || now_ > known.residentDue;
    if (!isDue || known.isKernelThread) return true;
    known.isRead = readResident(known);
    known.residentDue = now_ + residentPeriodOf(known);
    return known.isRead;
}

/// Where identifiers can be followed, only one that was assigned anew can be another process.
/// Otherwise only one that has not run is the same for sure, and one that has spent nothing yet
/// cannot be told from another one by its clock.
bool LinuxProcessTable::isTheSame(const Known& known, std::uint64_t clock) const {
    if (clock < known.clock) return false;
    return !tracker_.mayBeNew(known.pid) || (clock == known.clock && clock != 0);
}

/// What stands at the top of a list is never older than the shortest period.
double LinuxProcessTable::residentPeriodOf(const Known& known) const {
    if (known.residentBytes >= largeResident) return residentPeriod;
    if (isCalm_) return calmResidentPeriod;
    return std::clamp(static_cast<double>(known_.size()) / residentsPerSecond, residentPeriod,
                      longestResidentPeriod);
}

bool LinuxProcessTable::readStat(Known& known, std::uint64_t& counted) {
    const double part = known.isRead ? 1.0 : firstPart(known.pid);
    known.isRead = false;
    const auto text = readFile(known.pid, "stat");
    const auto stat = text ? ProcessStat::parse(*text) : std::nullopt;
    if (!stat) return false;
    const auto ticks = checkedSum(stat->userTicks, stat->systemTicks);
    const auto nanoseconds =
        ticks ? checkedProduct(*ticks, nanosecondsPerSecond / ticksPerSecond_) : std::nullopt;
    const auto bytes = checkedProduct(stat->residentPages, pageSize_);
    if (!nanoseconds || !bytes) return false;
    counted = *nanoseconds;
    known.residentBytes = *bytes;
    known.isRead = true;
    known.isKernelThread = stat->isKernelThread;
    known.startTicks = stat->startTicks;
    // Newer kernels count for each processor, and stat leaves out what these still have in hand.
    if (!known.isKernelThread) readResident(known);
    known.residentDue = now_ + part * residentPeriodOf(known);
    return true;
}

/// From statm, which is exact, and takes the kernel less than half the time that stat does.
bool LinuxProcessTable::readResident(Known& known) {
    const auto text = readFile(known.pid, "statm");
    const auto pages = text ? parseResidentPages(*text) : std::nullopt;
    const auto bytes = pages ? checkedProduct(*pages, pageSize_) : std::nullopt;
    if (!bytes) return false;
    known.residentBytes = *bytes;
    return true;
}

std::optional<std::string_view> LinuxProcessTable::readFile(std::int32_t pid,
                                                            std::string_view file) {
    const FileDescriptor opened{
        ::openat(proc_.get(), ProcessPath(pid, file).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    if (!opened) {
        hasShortage_ = isShortage(errno);
        return std::nullopt;
    }
    ssize_t count = 0;
    do {
        count = ::read(opened.get(), buffer_.data(), buffer_.size());
    } while (count < 0 && errno == EINTR);
    hasShortage_ = count < 0 && isShortage(errno);
    if (count < 1) return std::nullopt;
    return std::string_view(buffer_.data(), static_cast<std::size_t>(count));
}

bool LinuxProcessTable::mayHaveNewPath(std::int32_t pid) {
    // Only a process that runs can start another program in its place.
    const Known* const known = find(pid);
    return !known || known->hasRunSincePath;
}

int LinuxProcessTable::path(std::int32_t pid, std::span<char> buffer) {
    if (Known* const known = find(pid)) known->hasRunSincePath = false;
    if (buffer.empty()) return 0;
    const ssize_t count =
        ::readlinkat(proc_.get(), ProcessPath(pid, "exe").c_str(), buffer.data(), buffer.size());
    if (count < 0 && isRefusal(errno)) return claimedPath(pid, buffer);
    // A link that fills the buffer may be cut, and half a path names another file.
    if (count < 1 || static_cast<std::size_t>(count) == buffer.size()) return 0;
    constexpr std::string_view deleted = " (deleted)";
    std::string_view path(buffer.data(), static_cast<std::size_t>(count));
    if (path.ends_with(deleted)) path.remove_suffix(deleted.size());
    return static_cast<int>(path.size());
}

int LinuxProcessTable::claimedPath(std::int32_t pid, std::span<char> buffer) {
    const auto arguments = readFile(pid, "cmdline");
    const auto claim = arguments ? firstArgument(*arguments) : std::nullopt;
    if (!claim || !claim->starts_with('/') || claim->size() >= buffer.size()) return 0;
    std::copy(claim->begin(), claim->end(), buffer.begin());
    const std::string_view path(buffer.data(), claim->size());  // the next file takes its place
    return wholeName(path, kernelName(pid)) ? static_cast<int>(path.size()) : 0;
}

/// Within the buffer of files; empty when there is none.
std::string_view LinuxProcessTable::kernelName(std::int32_t pid) {
    if (auto comm = readFile(pid, "comm")) {
        if (comm->ends_with('\n')) comm->remove_suffix(1);
        return *comm;
    }
    const auto text = readFile(pid, "stat");  // kernels before 2.6.33 have no comm
    const auto stat = text ? ProcessStat::parse(*text) : std::nullopt;
    return stat ? stat->name : std::string_view{};
}

int LinuxProcessTable::name(std::int32_t pid, std::span<char> buffer) {
    const std::string_view name = kernelName(pid);
    const std::size_t count = std::min(name.size(), buffer.size());
    std::copy_n(name.begin(), count, buffer.begin());
    if (count == name.size() && mayBeCut(name)) return completedName(pid, buffer, count);
    return static_cast<int>(count);
}

/// The kernel's name is in the buffer, `count` bytes of it.
int LinuxProcessTable::completedName(std::int32_t pid, std::span<char> buffer, std::size_t count) {
    char letter = 0;
    const bool isRefused =
        ::readlinkat(proc_.get(), ProcessPath(pid, "exe").c_str(), &letter, 1) < 0 &&
        isRefusal(errno);
    const auto arguments = isRefused ? readFile(pid, "cmdline") : std::nullopt;
    const auto claim = arguments ? firstArgument(*arguments) : std::nullopt;
    const auto whole = claim ? wholeName(*claim, {buffer.data(), count}) : std::nullopt;
    if (!whole || whole->size() > buffer.size()) return static_cast<int>(count);
    std::copy(whole->begin(), whole->end(), buffer.begin());
    return static_cast<int>(whole->size());
}

}  // namespace vantor
