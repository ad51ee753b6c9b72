#include "machines/machine_document.h"

#include <unistd.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/record_coding.h"
#include "support/recorded_machine.h"

namespace vantor {

namespace {

using nlohmann::json;

constexpr std::uint64_t pageSizeOfDocuments = 4096;

template <class Record>
json toJSON(const Record& record) {
    auto value = encode(record);
    // What cannot be written has an infinite figure or one that is no number.
    return value ? *std::move(value) : json("not finite");
}

template <class Record>
json toJSON(const std::optional<Record>& record) {
    return record ? toJSON(*record) : json(nullptr);
}

template <class Record>
json toJSON(const Record* record) {
    return record ? toJSON(*record) : json(nullptr);
}

template <class Record>
json toJSON(const std::optional<std::vector<Record>>& records) {
    if (!records) return nullptr;
    json list = json::array();
    for (const Record& record : *records)
        list.push_back(toJSON(record));
    return list;
}

json toJSON(const PowerReadResult& result) {
    return result.isUpdate() ? toJSON(result.stats()) : json("failure");
}

json numbersOf(const std::vector<ProcessStats>& processes) {
    json numbers = json::array();
    for (const ProcessStats& process : processes)
        numbers.push_back(process.pid);
    return numbers;
}

json toJSON(ProcessSample sample) {
    const auto pageSize = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
    std::sort(sample.all.begin(), sample.all.end(),
              [](const auto& one, const auto& other) { return one.pid < other.pid; });
    json all = json::array();
    for (ProcessStats& process : sample.all) {
        process.residentMemoryBytes = process.residentMemoryBytes / pageSize * pageSizeOfDocuments;
        all.push_back(toJSON(process));
    }
    return {{"all", std::move(all)},
            {"sortedByCPU", numbersOf(sample.sortedByCPU)},
            {"sortedByMemory", numbersOf(sample.sortedByMemory)}};
}

json toJSON(SystemInfoStats stats) {
    if (!stats.architecture.empty()) stats.architecture = "(that of the build)";
    return toJSON<SystemInfoStats>(std::as_const(stats));
}

/// The name of that provider's record in the documents.
std::string keyOf(std::string_view label) {
    const std::string name(label.substr(label.rfind('.') + 1));
    static const std::map<std::string, std::string> others{{"gpu", "gpus"}, {"storage", "volumes"}};
    const auto other = others.find(name);
    return other == others.end() ? name : other->second;
}

json describeSecondPass(const std::string& name, bool includePointToPointInterfaces) {
    const auto machine = std::make_shared<RecordedMachine>(name);
    MachineWitness witness(machine, includePointToPointInterfaces);
    witness.ask();
    machine->advance(1);
    return witness.ask();
}

}  // namespace

MachineWitness::MachineWitness(std::shared_ptr<Machine> machine, bool includePointToPointInterfaces)
    : sampler_(SystemSampler::make(std::move(machine), queues_)),
      includePointToPointInterfaces_(includePointToPointInterfaces) {}

json MachineWitness::ask() {
    json said;
    forEachProvider([&]<class Provider>(Provider) {
        sampler_->request<Provider>(
            0, true,
            [&said](auto&& record) {
                said[keyOf(Provider::label)] = toJSON(std::forward<decltype(record)>(record));
            },
            {.includePointToPointInterfaces = includePointToPointInterfaces_});
    });
    queues_.runWaiting();
    return said;
}

std::string describeRecordedMachine(const std::string& name) {
    json document = describeSecondPass(name, false);
    json network = describeSecondPass(name, true)["network"];
    if (network != document["network"]) document["networkWithTunnels"] = std::move(network);
    return written(document);
}

std::string written(const json& document) {
    return document.dump(2) + '\n';
}

}  // namespace vantor
