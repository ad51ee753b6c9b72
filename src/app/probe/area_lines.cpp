#include "app/probe/area_lines.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <thread>
#include <utility>

#include "model/record_coding.h"
#include "model/snapshot_file_name.h"
#include "platform/native_machine.h"
#include "sampling/system_sampler.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 20s;
constexpr std::size_t areaCount = 8;
constexpr std::array<const char*, areaCount> areaNames{"cpu",       "memory", "network", "system",
                                                       "processes", "gpu",    "storage", "power"};

template <class Record>
std::string written(const Record& record) {
    const auto value = encode(record);
    return value ? value->dump() : "a figure that is not finite";
}

template <class Record>
std::string written(const std::vector<Record>& records) {
    std::string text = std::to_string(records.size()) + " in all";
    for (const Record& record : records)
        text += "\n" + std::string(41, ' ') + written(record);
    return text;
}

/// The readers' answers of one pass; filled by their threads. It outlives a pass that was given up,
/// for answers that come later.
class Answers {
  public:
    void put(std::size_t area, std::string text) {
        const std::lock_guard lock(mutex_);
        texts_[area] = std::move(text);
        ++arrived_;
        changed_.notify_all();
    }

    std::array<std::string, areaCount> wait() {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, patience, [&] { return arrived_ == areaCount; });
        return texts_;
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t arrived_ = 0;
    std::array<std::string, areaCount> texts_;
};

std::string summary(const ProcessSample& sample) {
    std::string text = std::to_string(sample.all.size()) + " in all";
    for (const auto* list : {&sample.sortedByCPU, &sample.sortedByMemory}) {
        if (!list->empty()) text += "\n" + std::string(41, ' ') + written(list->front());
    }
    return text;
}

std::array<std::string, areaCount> readAll(SystemSampler& sampler) {
    const auto answers = std::make_shared<Answers>();
    sampler.requestCPU(0, true, [answers](const CPUStats* stats) {
        answers->put(0, stats ? written(*stats) : "absent");
    });
    sampler.requestMemory(0, true, [answers](const std::optional<MemoryStats>& stats) {
        answers->put(1, stats ? written(*stats) : "absent");
    });
    sampler.requestNetwork(true, 0, true, [answers](const NetworkStats* stats) {
        answers->put(2, stats ? written(*stats) : "absent");
    });
    sampler.requestSystemInfo(
        0, true, [answers](const SystemInfoStats& stats) { answers->put(3, written(stats)); });
    sampler.requestProcesses(0, true, [answers](const ProcessSample& sample) {
        answers->put(4, sample.all.empty() ? "absent" : summary(sample));
    });
    sampler.requestGPUs(0, true, [answers](const std::optional<std::vector<GPUStats>>& stats) {
        answers->put(5, stats ? written(*stats) : "absent");
    });
    sampler.requestVolumes(0, true,
                           [answers](const std::optional<std::vector<VolumeStats>>& stats) {
                               answers->put(6, stats ? written(*stats) : "absent");
                           });
    sampler.requestPower(0, true, [answers](const PowerReadResult& result) {
        if (!result.isUpdate()) return answers->put(7, "absent");
        answers->put(7, result.stats() ? written(*result.stats()) : "no battery");
    });
    return answers->wait();
}

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

bool reportAreas(const std::shared_ptr<Machine>& machine, BackgroundQueueFactory& queues,
                 Report& report) {
    const auto sampler = SystemSampler::make(machine, queues);
    readAll(*sampler);
    std::this_thread::sleep_for(1s);  // a second's worth of work and traffic
    const auto texts = readAll(*sampler);
    for (std::size_t area = 0; area < areaCount; ++area)
        report.line(areaNames[area], texts[area].empty() ? "no answer in time" : texts[area]);
    const std::array always{texts[0], texts[1], texts[3], texts[4]};
    return std::none_of(always.begin(), always.end(),
                        [](const std::string& text) { return text.empty() || text == "absent"; });
}

bool reportServices(BackgroundQueueFactory& queues, Report& report) {
    const auto now = std::chrono::system_clock::now();
    const std::string name = snapshotFileName(makeNativeLocalCalendar()->at(now));
    report.line("local calendar, as a file's name", name);
    const auto path = std::filesystem::temp_directory_path() / ("probe-" + name);
    const std::string bytes = "a whole file\n";
    const auto error = makeNativeFileWriter()->write(path, bytes);
    const bool isWritten = !error && contentOf(path) == bytes;
    report.line("atomic file writer", error ? error->description : Report::text(isWritten));
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    const bool hasEnded = queues.waitForThreads(2s);
    report.line("queues have ended", hasEnded);
    return isWritten && hasEnded;
}

}  // namespace vantor
