#include <cstdio>
#include <cstdlib>
#include <string>
#include <variant>
#include <vector>

#include "model/snapshot_document.h"
#include "platform/simulated/fake_serial_queue.h"
#include "probes/cpu_reader.h"
#include "sampling/commit.h"
#include "sampling/system_sampler.h"

#include "pass_row.h"
#include "ticking_machine.h"
#include "verdict.h"

/// Compares what a reading meets on its way to the views with the bare work that is in it: the
/// reading itself, copying the list of 3,000 processes, and writing a document of them. In this
/// process and in turns. Exits with 1 when one costs too much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 160;
constexpr int processCount = 3000;
constexpr double requestLimit = 1.5;
constexpr double commitLimit = 1.5;
constexpr double documentLimit = 1.3;

volatile std::size_t sink = 0;  // keeps results from being optimised away

ProcessSample makeSample() {
    ProcessSample sample;
    for (int i = 0; i < processCount; ++i) {
        const std::string number = std::to_string(i);
        sample.all.push_back({i + 1, SharedText("process-" + number),
                              SharedText("/usr/lib/some/where/process-" + number), i * 0.01,
                              static_cast<std::uint64_t>(i) * 4096});
    }
    sample.sortedByCPU.assign(sample.all.begin(), sample.all.begin() + 18);
    sample.sortedByMemory = sample.sortedByCPU;
    return sample;
}

/// The plainest way to write as many members and numbers: the C library's formatting.
std::size_t printPlainly(const std::vector<ProcessStats>& processes, std::string& text) {
    text.clear();
    char line[512];
    for (const ProcessStats& process : processes) {
        const int length = std::snprintf(
            line, sizeof line,
            "    {\n      \"command\" : \"%s\",\n      \"cpuPercent\" : %.17g,\n      \"name\" : "
            "\"%s\",\n      \"pid\" : %d,\n      \"residentMemoryBytes\" : %llu\n    },\n",
            process.command.string().c_str(), process.cpuPercent, process.name.string().c_str(),
            process.pid, static_cast<unsigned long long>(process.residentMemoryBytes));
        text.append(line, static_cast<std::size_t>(length));
    }
    return text.size();
}

/// What a tick does to the state: the last but one takes a copy of the last, and the new records.
class Commits {
  public:
    explicit Commits(const ProcessSample& sample) : sample_(sample) {
        commit();
        commit();
    }
    void commit() {
        next_ = state_;
        PendingUpdate update;
        update.of<CPUProvider>() = CPUStats::empty();
        update.of<CPUProvider>()->totalUsage = ++ticks_ * 1e-6;
        update.of<ProcessProvider>() = sample_;
        sink = applyUpdate(std::move(update), next_, 120, Timestamp{}, 0) ? 1 : 0;
        std::swap(state_, next_);
    }
    const DashboardState& state() const { return state_; }

  private:
    const ProcessSample& sample_;
    DashboardState state_;
    DashboardState next_;
    int ticks_ = 0;
};

int compare(Form form) {
    const ProcessSample sample = makeSample();
    // A queue that is run by hand: how long a thread takes to wake depends on which processor it
    // last ran on, and by a factor of thirty.
    FakeSerialQueueFactory queues;
    const auto sampler = SystemSampler::make(makeTickingMachine(), queues);
    CPUReader reader(makeTickingMachine());
    std::size_t answers = 0;
    Commits commits(sample);
    std::vector<ProcessStats> copy = sample.all;
    SystemSnapshot snapshot = commits.state().snapshot;
    snapshot.timestamp = Timestamp{};
    std::string text;
    std::size_t written = 0;

    PassRow bareAsking("the reading of the processor alone", 20);
    PassRow asking("request to completion", 20);
    PassRow bareCopy("the list of processes, twice", 2);
    PassRow commit("a commit of all processes", 2);
    PassRow bareText("as many members by printf", 1);
    PassRow document("the snapshot's document", 1);
    const auto round = [&] {
        bareAsking.run([&] { answers += reader.read() != nullptr ? 1 : 0; });
        asking.run([&] {
            sampler->requestCPU(0.5, true, [&](const CPUStats*) { ++answers; });
            queues.runWaiting();
        });
        bareCopy.run([&] {
            copy = sample.all;
            const std::vector<ProcessStats> second = sample.all;
            sink = copy.size() + second.size();
        });
        commit.run([&] { commits.commit(); });
        bareText.run([&] { sink = printPlainly(sample.all, text); });
        document.run([&] { written = std::get<std::string>(encodedSnapshot(snapshot)).size(); });
    };
    const auto rows = {&bareAsking, &asking, &bareCopy, &commit, &bareText, &document};
    for (int i = 0; i < 5; ++i)
        round();
    for (PassRow* row : rows)
        row->forget();
    for (int i = 0; i < form.of(wholeRounds); ++i)
        round();
    sink = answers;
    reportHeading();
    const bool asks = report(bareAsking, asking, requestLimit, Allocations::allowed);
    const bool commitsWell = report(bareCopy, commit, commitLimit, Allocations::allowed);
    const bool writes = report(bareText, document, documentLimit, Allocations::allowed);
    // This build is optimised as no test's is: what is fast because it is wrong is found here.
    const bool isWhole = written > text.size() / 2;
    if (!isWhole) std::printf("The document has %zu bytes only: it is not whole.\n", written);
    const int status = form.status(asks && commitsWell && writes);
    return isWhole ? status : EXIT_FAILURE;
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
