#include "lived_machine.h"

#include <QScrollArea>

#include <cmath>

#include "platform/simulated/simulated_macs.h"

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t mebibyte = std::uint64_t{1} << 20;
constexpr double ticksPerStep = 5000;  // fine enough that rounding does not show

struct Program {
    const char* path;
    std::uint64_t residentMebibytes;
    double load;  ///< of one processor, at most
};

constexpr Program programs[]{
    {"/Applications/Xcode.app/Contents/Developer/usr/bin/clang", 1400, 1.7},
    {"/Applications/Safari.app/Contents/MacOS/Safari", 912, 0.42},
    {"/System/Library/CoreServices/WindowServer", 486, 0.21},
    {"/usr/libexec/mds_stores", 201, 0.16},
    {"/Applications/Music.app/Contents/MacOS/Music", 312, 0.06},
    {"/usr/sbin/coreaudiod", 24, 0.03},
    {"/sbin/launchd", 31, 0.01},
    {"/System/Applications/Mail.app/Contents/MacOS/Mail", 388, 0.02},
    {"/System/Library/CoreServices/Finder.app/Contents/MacOS/Finder", 174, 0.01},
    {"/usr/libexec/logd", 18, 0.008},
    {"/usr/sbin/bluetoothd", 16, 0.004},
    {"/usr/libexec/trustd", 12, 0.002},
    {"/Applications/Überblick.app/Contents/MacOS/Überblick", 96, 0.012},
    {"/usr/sbin/notifyd", 6, 0.001},
    {"/usr/libexec/opendirectoryd", 14, 0.001},
    {"/bin/zsh", 4, 0},
    {"/usr/bin/ssh-agent", 3, 0},
    {"/usr/libexec/UserEventAgent", 11, 0},
    {"/usr/sbin/cfprefsd", 5, 0},
    {"/usr/libexec/secd", 9, 0},
};

/// Between 0 and 1, smooth, and different for each `voice`.
double wave(int step, int voice) {
    const double x = step * 0.21 + voice * 1.7;
    return 0.5 + 0.32 * std::sin(x) + 0.18 * std::sin(x * 2.7 + voice);
}

SimulatedHostProcessors::Ticks ticks(double user, double system, double scale) {
    SimulatedHostProcessors::Ticks result;
    result.user = static_cast<std::uint32_t>(std::lround(user * scale));
    result.system = static_cast<std::uint32_t>(std::lround(system * scale));
    result.idle = static_cast<std::uint32_t>(std::lround((1 - user - system) * scale));
    return result;
}

void addPrograms(SimulatedMachine& machine) {
    std::int32_t pid = 1;
    for (const Program& program : programs) {
        auto& process =
            machine.processTable().add(pid, program.path, program.residentMebibytes * mebibyte);
        process.info.startSeconds = static_cast<std::uint64_t>(pid);
        pid += 97;
    }
}

class ThisVersion : public BundleInfo {
  public:
    std::optional<std::string> text(std::string_view key) const override {
        if (key != "CFBundleShortVersionString") return std::nullopt;
        return VANTOR_VERSION;
    }
};

LivedMachine working(const char* name, std::shared_ptr<SimulatedMachine> machine) {
    addPrograms(*machine);
    return {QString::fromLatin1(name), machine, machine->clock()};
}

}  // namespace

LivedMachine::LivedMachine(QString name, std::shared_ptr<SimulatedMachine> machine,
                           std::shared_ptr<FakeClock> clock)
    : name_(std::move(name)), machine_(std::move(machine)), clock_(std::move(clock)) {}

void LivedMachine::live(int step) {
    auto& processors = machine_->hostProcessors();
    for (std::size_t i = 0; i < processors.processors.size(); ++i) {
        const double busy = 0.75 * wave(step, static_cast<int>(i)) * wave(step, 9);
        const bool isResting = i % 4 == 3 && step % 12 < 9;
        processors.spend(i,
                         ticks(isResting ? 0.002 : busy, isResting ? 0 : busy * 0.3, ticksPerStep));
    }
    int voice = 0;
    std::int32_t pid = 1;
    for (const Program& program : programs) {
        const double seconds = program.load * wave(step, ++voice) * 0.5;
        machine_->processTable().spend(pid, static_cast<std::uint64_t>(seconds * 1e9));
        pid += 97;
    }
    for (auto& interface : machine_->interfaceCalls().interfaces) {
        interface.received += static_cast<std::uint64_t>(2.4e6 * std::pow(wave(step, 3), 3));
        interface.sent += static_cast<std::uint64_t>(3e5 * std::pow(wave(step, 5), 2));
    }
    auto& memory = machine_->hostMemory();
    if (memory.active > 0) {
        memory.active = memory.pagesOf(static_cast<std::uint64_t>(
            (4.2 + 1.4 * wave(step, 7)) * 1024 * static_cast<double>(mebibyte)));
    }
}

std::vector<LivedMachine> livedMachines() {
    const auto clock = [] { return std::make_shared<FakeClock>(); };
    std::vector<LivedMachine> machines;
    machines.push_back(working("laptop", makeAppleSiliconMac(SimulatedChip::m1, clock())));
    machines.push_back(working("desktop", SimulatedMachine::desktop(clock())));
    machines.push_back(working("intel", makeIntelMac(clock())));
    auto broken = SimulatedMachine::broken(clock());
    machines.emplace_back(QStringLiteral("broken"), broken, broken->clock());
    return machines;
}

LivedDashboard::LivedDashboard(Life life, ColorScheme scheme, int steps)
    : life_(std::move(life)), world_(life_.clock, life_.machine) {
    world_.metadata = AppMetadata(ThisVersion{});
    QApplication::setPalette(paletteOf(scheme));
    world_.make();
    world_.view->setPalette(paletteOf(scheme));
    if (steps == 0) return;
    world_.open();
    for (int step = 0; step < steps; ++step) {
        life_.live(step);
        world_.advance(500ms);
    }
}

LivedDashboard::LivedDashboard(LivedMachine machine, ColorScheme scheme, int steps)
    : LivedDashboard(
          [&machine] {
              machine.clock()->setNow(std::chrono::hours(51) + 7min);
              return Life{machine.name(), machine.machine(), machine.clock(),
                          [machine](int step) mutable { machine.live(step); }};
          }(),
          scheme, steps) {}

int LivedDashboard::wholeHeight(int width) {
    const QWidget& content = *world_.view->findChild<QScrollArea*>()->widget();
    // A high window shows more rows, and so needs more height.
    world_.view->resize(width, content.heightForWidth(width));
    settleEvents();
    return content.heightForWidth(width);
}

}  // namespace vantor
