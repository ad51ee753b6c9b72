#include <string>

#include "platform/linux/processes/process_stat.h"

#include "require.h"

namespace {

/// The line of a process with these figures.
std::string lineOf(const vantor::ProcessStat& stat) {
    const char* const flags = stat.isKernelThread ? "2097152" : "0";
    return "1 (" + std::string(stat.name) + ") S 1 1 1 0 -1 " + flags + " 9 8 7 6 " +
           std::to_string(stat.userTicks) + " " + std::to_string(stat.systemTicks) +
           " 5 4 20 0 1 0 " + std::to_string(stat.startTicks) + " 99 " +
           std::to_string(stat.residentPages) + " 0 0\n";
}

bool isSame(const vantor::ProcessStat& a, const vantor::ProcessStat& b) {
    return a.name == b.name && a.userTicks == b.userTicks && a.systemTicks == b.systemTicks &&
           a.startTicks == b.startTicks && a.residentPages == b.residentPages &&
           a.isKernelThread == b.isKernelThread;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const std::string_view text = fuzz::textOf(data, size);
    const auto stat = ProcessStat::parse(text);
    // Whatever a process is called, its figures stay what they are.
    const std::string named = lineOf({text, 3, 4, 5, 6, false});
    require(isSame(ProcessStat::parse(named).value(), {text, 3, 4, 5, 6, false}));
    if (!stat) return 0;
    const auto nameBegin = static_cast<std::size_t>(stat->name.data() - text.data());
    require(nameBegin > 0 && nameBegin + stat->name.size() < text.size());
    require(text[nameBegin - 1] == '(' && text[nameBegin + stat->name.size()] == ')');
    const std::string_view rest = text.substr(nameBegin + stat->name.size() + 1);
    require(rest.find(')') == rest.npos && rest.find('\n') != rest.npos);
    const std::string line = lineOf(*stat);
    require(isSame(ProcessStat::parse(line).value(), *stat));
    return 0;
}
