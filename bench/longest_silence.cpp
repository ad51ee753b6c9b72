#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include "e2e/faults/silence_meter.h"

/// `longest_silence WINDOW PID SECONDS`: asks the window of a running program for so long, every
/// ten milliseconds, whether it lives. Prints how long its main thread was silent at most, in
/// milliseconds, how long in that time it also wanted a processor and had none, which is not
/// counted, and how many questions were answered. Exits with 1 when none was.
int main(int argc, char** argv) {
    const char* const display = std::getenv("DISPLAY");
    if (argc < 4 || !display) {
        std::fprintf(stderr, "longest_silence WINDOW PID SECONDS, with a DISPLAY\n");
        return 2;
    }
    const auto window = static_cast<xcb_window_t>(std::stoul(argv[1], nullptr, 0));
    vantor::SilenceMeter meter(display, {{window, std::stoll(argv[2])}});
    if (!meter.isConnected()) {
        std::fprintf(stderr, "there is no display %s\n", display);
        return 2;
    }
    std::this_thread::sleep_for(std::chrono::seconds(std::stoi(argv[3])));
    const double longest = meter.longestSilences().front();
    const int answers = meter.answers().front();
    std::printf("%.1f\t%.1f\t%d\n", longest, meter.waits().front(), answers);
    return answers > 0 ? 0 : 1;
}
