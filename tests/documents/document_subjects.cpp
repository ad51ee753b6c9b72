#include "documents/document_subjects.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <stdexcept>
#include <utility>

#include "platform/posix/posix_atomic_file_writer.h"
#include "platform/simulated/simulated_macs.h"
#include "sampling/commit.h"
#include "sampling/fake_export_platform.h"
#include "sampling/fake_world.h"
#include "support/recorded_machine.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

using MakeSimulated = std::function<std::shared_ptr<SimulatedMachine>()>;

const std::map<std::string, MakeSimulated>& simulatedMachines() {
    static const std::map<std::string, MakeSimulated> machines{
        {"simulated-a18", [] { return makeAppleSiliconMac(SimulatedChip::a18); }},
        {"simulated-broken", [] { return SimulatedMachine::broken(); }},
        {"simulated-desktop", [] { return SimulatedMachine::desktop(); }},
        {"simulated-intel", [] { return makeIntelMac(); }},
        {"simulated-laptop", [] { return SimulatedMachine::laptop(); }},
        {"simulated-m1", [] { return makeAppleSiliconMac(SimulatedChip::m1); }},
        {"simulated-m2", [] { return makeAppleSiliconMac(SimulatedChip::m2); }},
        {"simulated-m3", [] { return makeAppleSiliconMac(SimulatedChip::m3); }},
        {"simulated-m4", [] { return makeAppleSiliconMac(SimulatedChip::m4); }},
        {"simulated-m5", [] { return makeAppleSiliconMac(SimulatedChip::m5); }},
        {"simulated-plain", [] { return std::make_shared<SimulatedMachine>(); }},
        {"simulated-unknown", [] { return makeAppleSiliconMac(SimulatedChip::unknown); }}};
    return machines;
}

/// Gives a machine something to do, in figures that do not come out even and names that need care.
void enliven(SimulatedMachine& machine) {
    machine.hostProcessors().growth = {3, 1, 3, 0};
    machine.interfaceCalls().receivedGrowth = 1'234'567;
    machine.interfaceCalls().sentGrowth = 7'001;
    SimulatedProcessTable& table = machine.processTable();
    table.add(1, "/sbin/launchd", 9'437'184);
    table.add(70, "/Applications/An \"App\".app/Contents/MacOS/App", 1'073'741'824);
    table.add(71, "/tmp/two\nlines\tand\x01more", 65'536);
    table.add(99, "/tmp/caf\xC3\xA9 caf\xE9", 4'096);
}

void letPass(SimulatedMachine& machine) {
    machine.clock()->wind(1s);
    machine.processTable().spend(70, 1'333'333'333);
    machine.processTable().spend(71, 1'000'003);
}

/// A monitor that reads on request only.
class ReadingMonitor {
  public:
    ReadingMonitor(std::shared_ptr<Machine> machine, ExportPlatform platform)
        : monitor_(SystemMonitor::make(makeSettings(), std::move(machine), loop_, queues_,
                                       std::move(platform))) {
        monitor_->togglePause();
    }

    SystemMonitor& operator*() { return *monitor_; }

    void read() {
        monitor_->forceRefresh();
        settle();
        clock_->wind(commitDelay);
        while (loop_->runDueTimer())
            settle();
    }

    void settle() {
        while (queues_->runWaiting() + loop_->runPosted() > 0) {
        }
    }

  private:
    std::shared_ptr<FakeClock> clock_ = std::make_shared<FakeClock>();
    std::shared_ptr<FakeMainLoop> loop_ = std::make_shared<FakeMainLoop>(clock_);
    std::shared_ptr<FakeSerialQueueFactory> queues_ = std::make_shared<FakeSerialQueueFactory>();
    std::shared_ptr<SystemMonitor> monitor_;
};

}  // namespace

std::vector<std::string> documentSubjectNames() {
    std::vector<std::string> names = RecordedTree::names();
    for (const auto& [name, make] : simulatedMachines())
        names.push_back(name);
    return names;
}

DocumentSubject makeDocumentSubject(const std::string& name) {
    const auto found = simulatedMachines().find(name);
    if (found == simulatedMachines().end()) {
        const auto machine = std::make_shared<RecordedMachine>(name);
        return {name, machine, [machine] { machine->advance(1); }};
    }
    const auto machine = found->second();
    if (name == "simulated-broken")
        return {name, machine, [machine] { machine->clock()->wind(1s); }};
    enliven(*machine);
    return {name, machine, [machine] { letPass(*machine); }};
}

SystemSnapshot exportSubject(const DocumentSubject& subject,
                             const std::filesystem::path& destination) {
    FakeExportPlatform user;
    ExportPlatform platform = user.platform();
    platform.files = std::make_shared<PosixAtomicFileWriter>();
    ReadingMonitor monitor(subject.machine, std::move(platform));
    monitor.read();
    subject.advance();
    monitor.read();
    (*monitor).exportSnapshot();
    user.confirm(destination);
    monitor.settle();
    if (!user.alerts.empty()) throw std::runtime_error(user.alerts[0].informativeText);
    return (*monitor).dashboardState().snapshot;
}

SystemSnapshot withoutTraces(SystemSnapshot snapshot) {
    constexpr std::uint64_t pageSizeOfDocuments = 4096;
    const auto pageSize = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
    if (!snapshot.system.architecture.empty()) snapshot.system.architecture = "(that of the build)";
    std::sort(snapshot.processes.begin(), snapshot.processes.end(),
              [](const auto& one, const auto& other) { return one.pid < other.pid; });
    for (ProcessStats& process : snapshot.processes)
        process.residentMemoryBytes = process.residentMemoryBytes / pageSize * pageSizeOfDocuments;
    return snapshot;
}

}  // namespace vantor
