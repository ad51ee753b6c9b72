#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <vector>

#include "platform/linux/confinement/linux_confinement.h"

#include "verdict.h"

/// What confining the program costs: the two steps at its start, and a reading of the processor
/// under both filters beside one without, in processes that take turns.
namespace vantor::bench {
namespace {

constexpr int wholeRounds = 240;
constexpr int readsPerRound = 400;
constexpr double startLimit = 2.0;  // milliseconds
constexpr double ratioLimit = 1.1;

using Clock = std::chrono::steady_clock;

struct Cost {
    double startMilliseconds = 0;
    double readMicroseconds = 0;
};

/// Of one process of its own: a filter does not come off again.
Cost costOf(bool isConfined) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) return {};
    const pid_t child = ::fork();
    if (child == 0) {
        Cost cost;
        const auto start = Clock::now();
        if (isConfined) {
            LinuxConfinement confinement(":0");
            confinement.confineEarly();
            confinement.confineForRunning(Confinement::Listening::isOver);
        }
        const auto confined = Clock::now();
        const int file = ::open("/proc/stat", O_RDONLY | O_CLOEXEC);
        std::array<char, 16384> text{};
        const auto before = Clock::now();
        for (int i = 0; i < readsPerRound; ++i) {
            if (::pread(file, text.data(), text.size(), 0) <= 0) ::_exit(1);
        }
        const std::chrono::duration<double, std::micro> spent = Clock::now() - before;
        cost.startMilliseconds =
            std::chrono::duration<double, std::milli>(confined - start).count();
        cost.readMicroseconds = spent.count() / readsPerRound;
        ::_exit(::write(pipe[1], &cost, sizeof cost) == sizeof cost ? 0 : 1);
    }
    Cost cost;
    if (::read(pipe[0], &cost, sizeof cost) != sizeof cost) cost = {};
    ::close(pipe[0]);
    ::close(pipe[1]);
    ::waitpid(child, nullptr, 0);
    return cost;
}

double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool measure(int rounds) {
    std::vector<double> starts;
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        // Who is first changes with each round.
        const Cost one = costOf(i % 2 == 0);
        const Cost other = costOf(i % 2 != 0);
        const Cost& confined = i % 2 == 0 ? one : other;
        const Cost& plain = i % 2 == 0 ? other : one;
        starts.push_back(confined.startMilliseconds);
        ratios.push_back(confined.readMicroseconds / plain.readMicroseconds);
    }
    const double start = medianOf(starts);
    const double ratio = medianOf(ratios);
    std::printf("both steps of the start %.2f ms; a reading of /proc/stat %.3f of a plain one\n",
                start, ratio);
    tellResult("confinement: ms at the start", start, startLimit, start <= startLimit);
    tellResult("confinement: a reading under it", ratio, ratioLimit, ratio <= ratioLimit);
    return start <= startLimit && ratio <= ratioLimit;
}

}  // namespace
}  // namespace vantor::bench

int main(int argc, char** argv) {
    const vantor::bench::Form form(argc, argv);
    return form.status(vantor::bench::measure(form.of(vantor::bench::wholeRounds)));
}
