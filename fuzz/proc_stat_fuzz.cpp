#include "platform/linux/processor/proc_stat.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    ProcStat stat;
    stat.parse("cpu  9 9 9 9\ncpu7 9 9 9 9\nintr 0\n");  // what a value held before must not show
    stat.parse(text);
    require(!stat.processorsAreWhole || !stat.processors.empty());
    if (stat.total || !stat.processors.empty()) require(text.starts_with("cpu"));
    require(stat.processors.size() * 12 <= text.size());
    ProcStat fresh;
    fresh.parse(text);
    require(fresh.total == stat.total && fresh.processors == stat.processors);
    require(fresh.processorsAreWhole == stat.processorsAreWhole);
    return 0;
}
