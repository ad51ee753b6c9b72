#include "support/recorded_machine.h"

#include <chrono>
#include <cstdint>
#include <fstream>
#include <sstream>

#include "support/recorded_calls.h"

namespace vantor {

namespace {

std::chrono::nanoseconds nanoseconds(double seconds) {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::duration<double>(seconds));
}

}  // namespace

RecordedMachine::RecordedMachine(const std::string& name)
    : RecordedMachine(std::make_shared<const RecordedTree>(name)) {}

RecordedMachine::RecordedMachine(std::shared_ptr<const RecordedTree> tree)
    : RecordedMachine(std::move(tree), std::make_shared<FakeClock>()) {}

RecordedMachine::RecordedMachine(std::shared_ptr<const RecordedTree> tree,
                                 std::shared_ptr<FakeClock> clock)
    : tree_(std::move(tree)),
      clock_(std::move(clock)),
      adapters_(
          std::make_shared<LinuxMachine>(tree_->roots(), recordedCalls(tree_->calls(), clock_))),
      processInfo_(adapters_->processInfo(), clock_),
      calls_(adapters_->calls()) {
    calls_.processInfo = processInfo_;
    calls_.wallClock = wallClock_;
    const auto uptime = tree_->calls() / "monotonic";
    if (std::filesystem::exists(uptime)) {
        clock_->setNow(nanoseconds(std::stod(readRecordedFile(uptime))));
    }
}

void RecordedMachine::advance(double seconds) {
    wind(seconds);
    tree_->applySecondPass();
}

void RecordedMachine::wind(double seconds) {
    clock_->wind(nanoseconds(seconds));
}

void RecordedMachine::work(double seconds) {
    wind(seconds);
    const std::filesystem::path path = tree_->roots().proc / "stat";
    std::istringstream before(readRecordedFile(path));
    std::ostringstream after;
    for (std::string line; std::getline(before, line);) {
        std::istringstream words(line);
        std::string name;
        std::uint64_t user = 0;
        if (line.starts_with("cpu") && words >> name >> user) {
            std::string rest;
            std::getline(words, rest);
            line = name + ' ' + std::to_string(user + 50) + rest;
        }
        after << line << '\n';
    }
    std::ofstream(path) << after.str();  // in place, as kernel files change
}

}  // namespace vantor
