#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/linux/processes/linux_process_table.h"

#include "lying_clocks.h"
#include "lying_proc.h"
#include "require.h"

/// Files and clocks of processes that say anything, and contradict each other.
namespace vantor {
namespace {

using fuzz::require;

constexpr std::int32_t highestPID = 8;

class Kernel {
  public:
    Kernel(fuzz::LyingProc& proc, FuzzedDataProvider& input)
        : proc_(proc), input_(input), table_(proc.roots(), clocks_) {}

    void step() {
        for (int i = input_.ConsumeIntegralInRange(0, 3); i > 0; --i)
            change(input_.ConsumeIntegralInRange(1, highestPID));
        proc_.sayLastPID(std::to_string(input_.ConsumeIntegralInRange(1, highestPID)) + '\n');
        clocks_->seconds += input_.ConsumeFloatingPointInRange(-1.0, 8.0);
        std::array<std::int32_t, 6> listed{};
        const auto room = input_.ConsumeIntegralInRange<std::size_t>(1, listed.size());
        if (input_.ConsumeBool()) require(table_.listAllPIDs({}) >= 0);
        const int count = table_.listAllPIDs(std::span(listed).first(room));
        require(count >= 0 && static_cast<std::size_t>(count) <= room);
        const auto pids = std::span(listed).first(static_cast<std::size_t>(count));
        require(std::ranges::adjacent_find(pids, std::greater_equal<>()) == pids.end());
        for (const std::int32_t pid : pids)
            ask(pid);
        ask(input_.ConsumeIntegral<std::int32_t>());
    }

  private:
    std::string number() {
        return std::to_string(input_.ConsumeBool()
                                  ? input_.ConsumeIntegralInRange<std::uint64_t>(0, 99)
                                  : input_.ConsumeIntegral<std::uint64_t>());
    }

    /// A line as kernels write it, with any numbers.
    std::string statLine(std::int32_t pid) {
        std::string line =
            std::to_string(pid) + " (" + input_.ConsumeRandomLengthString(20) + ") S";
        for (int field = 4; field <= 24; ++field)
            line += ' ' + number();
        return line + '\n';
    }

    void change(std::int32_t pid) {
        proc_.begin(pid);
        switch (input_.ConsumeIntegralInRange(0, 8)) {
            case 0:
                proc_.end(pid);
                break;
            case 1:
                clocks_->times.erase(pid);
                break;
            case 2:
                clocks_->times[pid] = input_.ConsumeIntegral<std::uint64_t>();
                break;
            case 3:
                proc_.say(pid, "stat", input_.ConsumeRandomLengthString(200));
                break;
            case 4:
                proc_.say(pid, "statm", number() + ' ' + number() + ' ' + number() + "\n");
                break;
            case 5:
                proc_.say(pid, "comm", input_.ConsumeRandomLengthString(20) + '\n');
                break;
            case 6:
                proc_.say(pid, "cmdline", input_.ConsumeRandomLengthString(60));
                break;
            case 7:
                proc_.link(pid, "exe", input_.ConsumeRandomLengthString(60));
                break;
            default:
                proc_.say(pid, "stat", statLine(pid));
        }
    }

    void ask(std::int32_t pid) {
        ProcessTable::TaskAllInfo info;
        const int filled = table_.taskAllInfo(pid, info);
        require(filled == 0 || filled == ProcessTable::taskAllInfoSize);
        const auto clock = clocks_->read(pid);
        if (filled > 0) {
            require(proc_.pids().contains(pid) || clock.has_value());
            require(info.startMicroseconds < 1'000'000);
            if (clock) require(info.totalUser == *clock && info.totalSystem == 0);
        }
        std::array<char, 64> text{};
        const auto room = input_.ConsumeIntegralInRange<std::size_t>(0, text.size());
        const auto buffer = std::span(text).first(room);
        const auto fits = [&](int count) {
            return count <= 0 || static_cast<std::size_t>(count) <= room;
        };
        require(fits(table_.name(pid, buffer)));
        require(fits(table_.path(pid, buffer)));
        table_.mayHaveNewPath(pid);
    }

    fuzz::LyingProc& proc_;
    FuzzedDataProvider& input_;
    std::shared_ptr<fuzz::LyingClocks> clocks_ = std::make_shared<fuzz::LyingClocks>();
    LinuxProcessTable table_;
};

}  // namespace
}  // namespace vantor

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    fuzz::runSteps<Kernel>(data, size);
    return 0;
}
