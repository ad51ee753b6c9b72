#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/linux/processes/pid_tracker.h"

#include "lying_clocks.h"
#include "lying_proc.h"
#include "require.h"

/// A kernel that assigns identifiers in any order, and clocks with any value.
namespace vantor {
namespace {

using fuzz::require;

class TrackerRun {
  public:
    TrackerRun(fuzz::LyingProc& proc, FuzzedDataProvider& input)
        : proc_(proc),
          input_(input),
          tracker_(proc.roots(), input.ConsumeBool() ? clocks_ : nullptr) {}

    void step() {
        for (int i = input_.ConsumeIntegralInRange(0, 3); i > 0; --i)
            change();
        sayLastPID();
        std::vector<std::int32_t> gone;
        for (const std::int32_t pid : tracker_.pids()) {
            if (input_.ConsumeIntegralInRange(0, 5) == 0) gone.push_back(pid);
        }
        const std::vector<std::int32_t> before(tracker_.pids().begin(), tracker_.pids().end());
        const auto listings = tracker_.listings();
        const bool isCounted = tracker_.update(clocks_->seconds, gone);
        if (tracker_.listings() > listings) {
            require(isCounted && std::ranges::equal(tracker_.pids(), proc_.pids()));
        } else {
            require(isCounted);
            judgeFollowed(before, gone);
        }
    }

  private:
    std::int32_t somePID() {
        return input_.ConsumeBool() ? input_.ConsumeIntegralInRange(1, 40)
                                    : input_.ConsumeIntegralInRange(1, 0x7fffffff);
    }

    void change() {
        const std::int32_t pid = somePID();
        switch (input_.ConsumeIntegralInRange(0, 4)) {
            case 0:
                proc_.begin(pid);
                break;
            case 1:
                proc_.end(pid);
                break;
            case 2:
                clocks_->times[pid] = 1;
                break;
            case 3:
                clocks_->times.erase(pid);
                break;
            default:
                clocks_->seconds += input_.ConsumeFloatingPointInRange(-3.0, 40.0);
        }
    }

    void sayLastPID() {
        switch (input_.ConsumeIntegralInRange(0, 3)) {
            case 0:
                proc_.sayLastPID(input_.ConsumeRandomLengthString(16));
                break;
            case 1:
                proc_.sayLastPID(std::to_string(somePID()) + '\n');
                break;
            default:
                proc_.sayLastPID(std::to_string(input_.ConsumeIntegralInRange(1, 60)) + '\n');
        }
        clocks_->seconds += 1;
    }

    /// Processes that were there and did not end still are; new ones have a clock.
    void judgeFollowed(const std::vector<std::int32_t>& before,
                       const std::vector<std::int32_t>& gone) const {
        const auto now = tracker_.pids();
        require(std::ranges::adjacent_find(now, std::greater_equal<>()) == now.end());
        for (const std::int32_t pid : before) {
            if (std::ranges::binary_search(gone, pid)) continue;
            require(std::ranges::binary_search(now, pid));
        }
        for (const std::int32_t pid : now) {
            const bool wasThere =
                std::ranges::binary_search(before, pid) && !std::ranges::binary_search(gone, pid);
            require(pid > 0 && (wasThere || clocks_->read(pid)));
        }
    }

    fuzz::LyingProc& proc_;
    FuzzedDataProvider& input_;
    std::shared_ptr<fuzz::LyingClocks> clocks_ = std::make_shared<fuzz::LyingClocks>();
    PIDTracker tracker_;
};

}  // namespace
}  // namespace vantor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    const fuzz::LyingProc& proc = fuzz::runSteps<TrackerRun>(data, size);

    LinuxRoots nowhere;
    nowhere.proc = proc.root() / "nowhere";
    PIDTracker none(nowhere, nullptr);
    fuzz::require(!none.update(1, {}) && none.pids().empty());
    return 0;
}
