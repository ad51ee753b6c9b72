#include "recorded_life.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>

#include "support/recorded_machine.h"

namespace vantor {

namespace {

namespace fs = std::filesystem;

constexpr double stepSeconds = 0.5;
constexpr double ticksPerSecond = 100;
constexpr std::uint64_t pagesPerMebibyte = 256;

struct RunningFile {
    int pid;
    const char* path;
    std::uint64_t residentMebibytes;
    double load;  ///< of one processor, at most
};

/// Beside those that were recorded, so that the explorer is as full as people's are.
constexpr RunningFile runningFiles[]{
    {41007, "/usr/libexec/gcc/x86_64-redhat-linux/14/cc1plus", 383, 1.0},
    {41019, "/usr/libexec/gcc/x86_64-redhat-linux/14/cc1plus", 351, 0.9},
    {3011, "/usr/lib64/firefox/firefox", 912, 0.46},
    {2210, "/usr/bin/gnome-shell", 356, 0.22},
    {3208, "/usr/share/code/code", 604, 0.17},
    {2502, "/usr/bin/Xwayland", 118, 0.06},
    {2431, "/usr/bin/pipewire", 22, 0.05},
    {2960, "/usr/bin/ptyxis", 74, 0.03},
    {3377, "/usr/bin/thunderbird", 421, 0.02},
    {1177, "/usr/sbin/NetworkManager", 21, 0.012},
    {2619, "/usr/bin/gnome-software", 188, 0.01},
    {2655, "/usr/libexec/tracker-miner-fs-3", 58, 0.02},
    {1043, "/usr/sbin/avahi-daemon", 5, 0.004},
    {40988, "/usr/bin/ninja", 12, 0.02},
    {3105, "/usr/bin/bash", 6, 0},
    {1342, "/usr/sbin/cupsd", 11, 0},
    {2488, "/usr/bin/wireplumber", 19, 0.008},
};

/// A recorded machine, and what of it moves.
struct Recording {
    const char* name;
    const char* folder;
    int link;  ///< that carries something
    double activeKibibytes;
    double availableKibibytes;
    double movingKibibytes;            ///< of both
    const char* processorTemperature;  ///< in /sys
    const char* graphicsClient;        ///< in /proc; null where the driver counts by itself
    const char* graphicsLoad;          ///< in /sys, where it does
};

constexpr Recording laptop{"linux-laptop",
                           "laptop-two-batteries",
                           3,
                           4.4e6,
                           9.3e6,
                           2e6,
                           "devices/platform/coretemp.0/hwmon/hwmon4/temp1_input",
                           "2210/fdinfo/11",
                           nullptr};
constexpr Recording desktop{"linux-desktop",
                            "desktop-disks-vpn",
                            2,
                            14e6,
                            44.1e6,
                            9e6,
                            "devices/pci0000:00/0000:00:18.3/hwmon/hwmon2/temp1_input",
                            nullptr,
                            "devices/pci0000:00/0000:00:01.1/0000:03:00.0/gpu_busy_percent"};

/// Between 0 and 1, smooth, and different for each `voice`.
double curve(int step, int voice) {
    const double x = step * 0.19 + voice * 1.9;
    return 0.5 + 0.32 * std::sin(x) + 0.18 * std::sin(x * 2.7 + voice);
}

/// In place, as kernel files change.
void write(const fs::path& path, const std::string& text) {
    std::ofstream(path) << text;
}

/// Each line of the file, changed by `change`.
void rewrite(const fs::path& path, const std::function<void(std::string& line)>& change) {
    std::istringstream before(readRecordedFile(path));
    std::string after;
    for (std::string line; std::getline(before, line);) {
        change(line);
        after += line + '\n';
    }
    write(path, after);
}

/// What a recorded computer does from step to step, written into its files.
class RecordedLife {
  public:
    RecordedLife(const RecordedTree& tree, const Recording& recording)
        : tree_(tree), recording_(recording) {
        for (const RunningFile& each : runningFiles)
            add(each);
        write(tree_.roots().proc / "uptime", "196323.25 1100402.11\n");
    }

    void live(int step) {
        workProcessors(step);
        workProcesses(step);
        const fs::path proc = tree_.roots().proc;
        rewrite(proc / "meminfo", [&](std::string& line) {
            const double moved = recording_.movingKibibytes * curve(step, 7);
            if (line.starts_with("Active:"))
                line = amount("Active:", recording_.activeKibibytes + moved);
            if (line.starts_with("MemAvailable:"))
                line = amount("MemAvailable:", recording_.availableKibibytes - moved);
        });
        rewrite(tree_.calls() / "links", [&](std::string& line) { carry(line, step); });
        workGraphics(step);
        write(tree_.roots().sys / recording_.processorTemperature,
              std::to_string(std::lround(58 + 9 * curve(step, 9)) * 1000) + '\n');
    }

  private:
    void add(const RunningFile& file) const {
        const fs::path folder = tree_.roots().proc / std::to_string(file.pid);
        fs::create_directories(folder);
        fs::remove(folder / "exe");
        fs::create_symlink(file.path, folder / "exe");
        write(folder / "comm", commandOf(file) + '\n');
        const auto pages = std::to_string(file.residentMebibytes * pagesPerMebibyte);
        write(folder / "statm", pages + ' ' + pages + " 300 200 0 200 0\n");
        writeTime(file, 0);
    }

    static std::string commandOf(const RunningFile& file) {
        constexpr std::size_t longest = 15;
        return fs::path(file.path).filename().string().substr(0, longest);
    }

    void writeTime(const RunningFile& file, std::uint64_t ticks) const {
        std::ostringstream text;
        text << file.pid << " (" << commandOf(file) << ") S 1 1 1 0 -1 4194560 0 0 0 0 " << ticks
             << " 0 0 0 20 0 1 0 " << file.pid << " 50000000 "
             << file.residentMebibytes * pagesPerMebibyte
             << " 18446744073709551615 0 0 0 0 0 0 0 0 0 0 0 0 17 1 0 0 0 0 0 0 0 0 0 0 0 0 0\n";
        write(tree_.roots().proc / std::to_string(file.pid) / "stat", text.str());
    }

    void workGraphics(int step) {
        const double load = curve(step, 11);
        if (recording_.graphicsLoad) {
            write(tree_.roots().sys / recording_.graphicsLoad,
                  std::to_string(std::lround(8 + 60 * load * load)) + '\n');
        }
        if (!recording_.graphicsClient) return;
        rewrite(tree_.roots().proc / recording_.graphicsClient, [&](std::string& line) {
            rendered_ += static_cast<std::uint64_t>(1.1e7 * load);
            if (line.starts_with("drm-engine-render:"))
                line = "drm-engine-render:\t" + std::to_string(98'000'000'000 + rendered_) + " ns";
        });
    }

    void workProcessors(int step) const {
        const fs::path file = tree_.roots().proc / "stat";
        int processors = -1;  // the first line is all of them together
        rewrite(file, [&](const std::string& line) { processors += line.starts_with("cpu"); });
        int index = -1;
        rewrite(file, [&](std::string& line) {
            if (!line.starts_with("cpu")) return;
            std::istringstream words(line);
            std::string name;
            std::uint64_t user = 0, nice = 0, system = 0, idle = 0;
            words >> name >> user >> nice >> system >> idle;
            std::string rest;
            std::getline(words, rest);
            const int count = index < 0 ? processors : 1;
            for (int i = 0; i < count; ++i) {
                const int voice = index < 0 ? i : index;
                const double busy = voice < 2 ? 0.55 + 0.4 * curve(step, voice)
                                              : 0.6 * curve(step, voice) * curve(step, 9);
                const auto ticks = [](double share) {
                    return static_cast<std::uint64_t>(
                        std::lround(share * stepSeconds * ticksPerSecond));
                };
                user += ticks(busy * 0.8);
                system += ticks(busy * 0.2);
                idle += ticks(1 - busy);
            }
            ++index;
            line = name + ' ' + std::to_string(user) + ' ' + std::to_string(nice) + ' ' +
                   std::to_string(system) + ' ' + std::to_string(idle) + rest;
        });
    }

    void workProcesses(int step) {
        spent_.resize(std::size(runningFiles));
        for (std::size_t i = 0; i < std::size(runningFiles); ++i) {
            spent_[i] += runningFiles[i].load * (0.5 + 0.5 * curve(step, static_cast<int>(i))) *
                         stepSeconds * ticksPerSecond;
            writeTime(runningFiles[i], static_cast<std::uint64_t>(spent_[i]));
        }
    }

    /// The link's line of counters, after what it carried.
    void carry(std::string& line, int step) const {
        if (!line.starts_with(std::to_string(recording_.link) + ' ')) return;
        std::istringstream words(line);
        std::string index, name, flags;
        std::uint64_t received = 0, sent = 0;
        words >> index >> name >> flags >> received >> sent;
        received += static_cast<std::uint64_t>(2.4e6 * std::pow(curve(step, 3), 3));
        sent += static_cast<std::uint64_t>(3e5 * std::pow(curve(step, 5), 2));
        line = index + ' ' + name + ' ' + flags + ' ' + std::to_string(received) + ' ' +
               std::to_string(sent);
    }

    static std::string amount(std::string_view name, double kibibytes) {
        return std::string(name) + ' ' + std::to_string(std::llround(kibibytes)) + " kB";
    }

    const RecordedTree& tree_;
    const Recording& recording_;
    std::vector<double> spent_;
    std::uint64_t rendered_ = 0;
};

/// Goes by the same clock, from a forenoon on.
class DaytimeClock : public WallClock {
  public:
    explicit DaytimeClock(std::shared_ptr<const FakeClock> clock)
        : clock_(std::move(clock)), begin_(clock_->seconds()) {}

    std::chrono::system_clock::time_point now() const override {
        using namespace std::chrono;
        return sys_days{January / 16 / 2026} + 10h + 24min +
               round<milliseconds>(duration<double>(clock_->seconds() - begin_));
    }

  private:
    std::shared_ptr<const FakeClock> clock_;
    double begin_;
};

class LivedRecording : public RecordedMachine {
  public:
    LivedRecording(const std::shared_ptr<const RecordedTree>& tree,
                   const std::shared_ptr<FakeClock>& clock)
        : RecordedMachine(tree, clock), daytime_(clock) {
        ownCalls().wallClock = daytime_;
    }

  private:
    DaytimeClock daytime_;
};

std::unique_ptr<LivedDashboard> dashboardOf(const Recording& recording, ColorScheme scheme,
                                            int steps) {
    const auto tree = std::make_shared<const RecordedTree>(recording.folder);
    const auto clock = std::make_shared<FakeClock>();
    const auto machine = std::make_shared<LivedRecording>(tree, clock);
    const auto life = std::make_shared<RecordedLife>(*tree, recording);
    return std::make_unique<LivedDashboard>(
        LivedDashboard::Life{QString::fromLatin1(recording.name), machine, clock,
                             [tree, life](int step) { life->live(step); }},
        scheme, steps);
}

}  // namespace

std::vector<std::unique_ptr<LivedDashboard>> recordedDashboards(ColorScheme scheme, int steps) {
    std::vector<std::unique_ptr<LivedDashboard>> dashboards;
    for (const Recording* recording : {&laptop, &desktop})
        dashboards.push_back(dashboardOf(*recording, scheme, steps));
    return dashboards;
}

}  // namespace vantor
