#include "support/recorded_machine.h"

#include <chrono>

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
    : tree_(std::move(tree)),
      machine_(tree_->roots(), recordedCalls(tree_->calls(), clock_)),
      processInfo_(machine_.processInfo(), clock_) {
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

}  // namespace vantor
