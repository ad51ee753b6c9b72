#include "app/probe/call_lines.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "platform/sysctl.h"

namespace vantor {

namespace {

template <class Numbers>
std::string joined(const Numbers& numbers) {
    std::string text;
    for (const auto& number : numbers)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

std::string firstText(std::span<const char> buffer, int count) {
    if (count < 1) return "absent (" + std::to_string(count) + ")";
    const auto end = std::find(buffer.begin(), buffer.end(), '\0');
    return "\"" + std::string(buffer.begin(), end) + "\", " + std::to_string(count) + " bytes";
}

void reportKernelValues(KernelValues& values, Report& report) {
    const Sysctl sysctl(values);
    for (const char* const name :
         {"machdep.cpu.brand_string", "hw.model", "kern.osversion", "kern.osproductversion"})
        report.line(std::string("sysctlbyname ") + name, sysctl.string(name));
    for (const char* const name : {"hw.logicalcpu", "hw.physicalcpu", "kern.maxproc",
                                   "hw.optional.arm64", "sysctl.proc_translated"})
        report.line(std::string("sysctlbyname ") + name, sysctl.int32(name));
    for (const char* const name : {"hw.cpufrequency", "hw.memsize", "hw.tbfrequency"})
        report.line(std::string("sysctlbyname ") + name, sysctl.uint64(name));
}

void reportProcessors(HostProcessors& host, Report& report) {
    const auto port = host.acquirePort();
    std::array<std::uint32_t, 4> ticks{};
    const auto count = host.totalTicks(port, ticks);
    report.line("totalTicks (user system idle nice)", count ? joined(ticks) : "absent");
    const auto array = host.processorTicks(port);
    report.line("processorTicks", array ? std::to_string(array->processorCount) + " processors, " +
                                              std::to_string(array->wordCount) + " words"
                                        : "absent");
    if (array && array->words)
        host.releaseArray(array->words, std::size_t{array->wordCount} * sizeof(std::uint32_t));
    host.releasePort(port);
}

void reportMemory(HostMemory& host, Report& report) {
    using Layout = HostMemory::Layout;
    const auto port = host.acquirePort();
    std::array<std::uint32_t, 62> words{};
    report.line("vmStatistics, words filled", host.vmStatistics(port, words));
    report.line(
        "  active inactive wired",
        joined(std::array{words[Layout::active], words[Layout::inactive], words[Layout::wired]}));
    report.line("  purgeable compressor",
                joined(std::array{words[Layout::purgeable], words[Layout::compressor]}));
    report.line("pageSize, bytes", host.pageSize(port));
    host.releasePort(port);
}

}  // namespace

void reportSurroundings(ProcessInfo& info, Report& report) {
    report.line("systemUptime, seconds", info.systemUptime());
    report.line("secondsSinceBoot", info.secondsSinceBoot());
    report.line("processorCount", info.processorCount());
    report.line("activeProcessorCount", info.activeProcessorCount());
    report.line("physicalMemory, bytes", info.physicalMemory());
    std::string host;
    info.hostName(host);
    report.line("hostName", host);
    const auto version = info.operatingSystemVersion();
    report.line("operatingSystemVersion",
                joined(std::array{version.major, version.minor, version.patch}));
    report.line("operatingSystemName", info.operatingSystemName());
    report.line("isOperatingSystemAtLeast 12.0.0", info.isOperatingSystemAtLeast(12, 0, 0));
    report.line("isOperatingSystemAtLeast 13.0.0", info.isOperatingSystemAtLeast(13, 0, 0));
    report.line("thermalState (0 nominal, 3 critical)", info.thermalState());
    report.line("isLowPowerModeEnabled", info.isLowPowerModeEnabled());
}

void reportKernel(Machine& machine, Report& report) {
    reportKernelValues(machine.kernelValues(), report);
    reportProcessors(machine.hostProcessors(), report);
    reportMemory(machine.hostMemory(), report);
    std::array<double, 3> averages{};
    const int count = machine.loadAverages().getloadavg(averages);
    report.line("getloadavg", count < 1 ? "absent" : joined(averages));
}

void reportProcesses(ProcessTable& table, Report& report) {
    const int expected = table.listAllPIDs({});
    report.line("listAllPIDs, expected", expected);
    std::vector<std::int32_t> pids(static_cast<std::size_t>(std::max(0, expected)) + 64);
    report.line("listAllPIDs, written", table.listAllPIDs(pids));
    const auto self = static_cast<std::int32_t>(::getpid());
    ProcessTable::TaskAllInfo info;
    report.line("taskAllInfo of this program", table.taskAllInfo(self, info));
    report.line("  start, seconds and microseconds",
                joined(std::array{info.startSeconds, info.startMicroseconds}));
    report.line("  resident bytes", info.residentSize);
    report.line("  time, user and system", joined(std::array{info.totalUser, info.totalSystem}));
    std::array<char, 4096> path{};
    report.line("path of this program", firstText(path, table.path(self, path)));
    std::array<char, 1024> name{};
    report.line("name of this program", firstText(name, table.name(self, name)));
    report.line("mayHaveNewPath", table.mayHaveNewPath(self));
    const auto timebase = table.timebase();
    report.line("timebase", timebase ? std::to_string(timebase->numerator) + "/" +
                                           std::to_string(timebase->denominator)
                                     : "absent");
}

void reportCalls(Machine& machine, Report& report) {
    report.heading("Surroundings");
    report.line("platform", machine.words().systemName);
    report.line("wallClock, seconds since 1970", std::chrono::duration_cast<std::chrono::seconds>(
                                                     machine.wallClock().now().time_since_epoch())
                                                     .count());
    reportSurroundings(machine.processInfo(), report);
    report.heading("Kernel");
    reportKernel(machine, report);
    report.heading("Processes");
    reportProcesses(machine.processTable(), report);
    report.heading("Network");
    reportNetwork(machine, report);
    report.heading("Storage and power");
    reportStorageAndPower(machine, report);
    report.heading("Graphics");
    reportGraphics(machine, report);
    report.heading("Sensors");
    reportSensors(machine, report);
}

}  // namespace vantor
