#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "platform/linux/graphics/graphics_cards.h"
#include "platform/linux/graphics/linux_accelerators.h"
#include "sampling/counted_allocations.h"

#include "graphics_tree.h"
#include "verdict.h"

/// Compares a pass over graphics cards with the bare system calls that it cannot do without: one
/// read of each file that tells, kept open, and the links of all processes' open files once in five
/// passes, as one is made each second. Both run in turns. Exits with 1 when a pass costs too much.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 200;
constexpr int passesPerRound = 25;
constexpr int passesPerSweep = 5;
constexpr double ratioLimit = 1.5;

volatile std::size_t sink = 0;  // keeps results from being optimised away

class SecondsClock : public ProcessClocks {
  public:
    std::optional<std::uint64_t> read(std::int32_t) override { return std::nullopt; }
    double now() override { return now_; }
    void advance() { now_ += 1; }

  private:
    double now_ = 1;
};

class BareCalls {
  public:
    explicit BareCalls(const GraphicsTree& tree) : proc_(tree.roots().proc) {
        for (const auto& path : tree.filesOfPass())
            files_.emplace_back(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    }

    std::size_t pass() {
        std::size_t bytes = 0;
        for (const FileDescriptor& file : files_)
            bytes +=
                static_cast<std::size_t>(::pread(file.get(), buffer_.data(), buffer_.size(), 0));
        if (++passes_ % passesPerSweep == 0) bytes += sweep();
        return bytes;
    }

  private:
    static FileDescriptor openFolder(int at, const char* path) {
        return FileDescriptor{::openat(at, path, O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    }

    std::size_t sweep() {
        std::size_t bytes = 0;
        const FileDescriptor proc = openFolder(AT_FDCWD, proc_.c_str());
        forEachName(proc.get(), [&](const std::string& pid) {
            const FileDescriptor folder = openFolder(proc.get(), (pid + "/fd").c_str());
            forEachName(folder.get(), [&](const std::string& fd) {
                bytes += static_cast<std::size_t>(
                    ::readlinkat(folder.get(), fd.c_str(), buffer_.data(), buffer_.size()));
            });
        });
        return bytes;
    }

    template <class Take>
    static void forEachName(int folder, Take take) {
        DIR* const stream = ::fdopendir(::dup(folder));
        while (const dirent* const entry = ::readdir(stream)) {
            if (entry->d_name[0] != '.') take(entry->d_name);
        }
        ::closedir(stream);
    }

    std::filesystem::path proc_;
    std::vector<FileDescriptor> files_;
    std::array<char, 16384> buffer_{};
    int passes_ = 0;
};

struct Row {
    const char* name;
    std::vector<double> microseconds;  // per pass, one of each round
    std::size_t allocations = 0;
    double spent = 0;

    template <class Pass>
    void run(Pass pass) {
        using Clock = std::chrono::steady_clock;
        const std::size_t before = countedAllocations();
        const auto start = Clock::now();
        pass();
        spent += std::chrono::duration<double, std::micro>(Clock::now() - start).count();
        allocations += countedAllocations() - before;
    }

    void endRound() { microseconds.push_back(std::exchange(spent, 0) / passesPerRound); }

    double median() {
        const auto middle =
            microseconds.begin() + static_cast<std::ptrdiff_t>(microseconds.size() / 2);
        std::nth_element(microseconds.begin(), middle, microseconds.end());
        return *middle;
    }
};

std::size_t readAll(LinuxAccelerators& accelerators) {
    std::size_t figures = 0;
    const auto iterator = accelerators.matchingServices();
    if (!iterator) return 0;
    while (const auto service = accelerators.iteratorNext(*iterator))
        figures += accelerators.property(service, "PerformanceStatistics")->dictionary()->size();
    return figures;
}

int compare(Form form) {
    const int rounds = form.of(wholeRounds);
    constexpr std::size_t allFigures = 5;  // four of the one, the utilisation of the other
    GraphicsTree tree;
    const auto clock = std::make_shared<SecondsClock>();
    LinuxCalls calls;
    calls.processClocks = clock;
    LinuxAccelerators accelerators(std::make_shared<GraphicsCards>(tree.roots(), calls));
    BareCalls bare(tree);
    Row calling{"bare system calls", {}}, reading{"pass over two cards", {}};
    readAll(accelerators);
    bool isWhole = true;
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < passesPerRound; ++i) {
            tree.work();
            clock->advance();
            calling.run([&] { sink = bare.pass(); });
            reading.run([&] { isWhole = readAll(accelerators) == allFigures && isWhole; });
        }
        calling.endRound();
        reading.endRound();
    }
    if (!isWhole) {
        std::fprintf(stderr, "some passes lacked a figure: these times mean nothing\n");
        return 2;
    }
    const double base = calling.median(), pass = reading.median();
    std::printf("%-28s %9s %8s %8s %8s  %s\n", "pass, 40 clients", "us", "ratio", "allocs", "limit",
                "verdict");
    std::printf("%-28s %9.2f %8.2f %8s %8s  %s\n", calling.name, base, 1.0, "-", "-", "-");
    std::printf("%-28s %9.2f %8.2f %8.2f %8.1f  %s\n", reading.name, pass, pass / base,
                static_cast<double>(reading.allocations) / (rounds * passesPerRound), ratioLimit,
                pass <= ratioLimit * base ? "ok" : "TOO MUCH");
    tellResult(reading.name, pass / base, ratioLimit, pass <= ratioLimit * base);
    return form.status(pass <= ratioLimit * base);
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    return vantor::bench::compare(vantor::bench::Form(argc, argv));
}
