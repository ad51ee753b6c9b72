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
#include <optional>
#include <string_view>
#include <thread>
#include <tuple>
#include <utility>

#include "model/record_coding.h"
#include "model/snapshot_file_name.h"
#include "platform/native_machine.h"
#include "sampling/system_sampler.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 20s;
constexpr std::size_t areaCount = std::tuple_size_v<AllProviders>;
constexpr std::array<std::string_view, 4> areasOfEveryMachine{"cpu", "memory", "system",
                                                              "processes"};

/// The last part of the label of that provider's queue.
std::string_view areaName(std::size_t area) {
    const std::string_view label = SystemSampler::queueLabels()[area];
    return label.substr(label.rfind('.') + 1);
}

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

template <class Record>
std::string answerText(const Record& stats) {
    return written(stats);
}
template <class Record>
std::string answerText(const Record* stats) {
    return stats ? written(*stats) : "absent";
}
template <class Record>
std::string answerText(const std::optional<Record>& stats) {
    return stats ? written(*stats) : "absent";
}
std::string answerText(const ProcessSample& sample) {
    if (sample.all.empty()) return "absent";
    std::string text = std::to_string(sample.all.size()) + " in all";
    for (const auto* list : {&sample.sortedByCPU, &sample.sortedByMemory}) {
        if (!list->empty()) text += "\n" + std::string(41, ' ') + written(list->front());
    }
    return text;
}
std::string answerText(const PowerReadResult& result) {
    if (!result.isUpdate()) return "absent";
    return result.stats() ? written(*result.stats()) : "no battery";
}

std::array<std::string, areaCount> readAll(SystemSampler& sampler) {
    const auto answers = std::make_shared<Answers>();
    std::size_t area = 0;
    forEachProvider([&]<class Provider>(Provider) {
        sampler.request<Provider>(0, true,
                                  [answers, place = area++](const auto& answer) {
                                      answers->put(place, answerText(answer));
                                  },
                                  {.includePointToPointInterfaces = true});
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
    bool isWhole = true;
    for (std::size_t area = 0; area < areaCount; ++area) {
        const std::string_view name = areaName(area);
        const std::string& text = texts[area];
        report.line(name, text.empty() ? "no answer in time" : text);
        const bool isMissing = text.empty() || text == "absent";
        if (isMissing && std::ranges::find(areasOfEveryMachine, name) != areasOfEveryMachine.end())
            isWhole = false;
    }
    return isWhole;
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
