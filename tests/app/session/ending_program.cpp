#include <unistd.h>

#include <QCoreApplication>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <future>
#include <string_view>

#include "app/session/termination_signals.h"
#include "platform/posix/end_watchdog.h"

/// A program that a signal ends: orderly ("orderly": says "ending", leaves with status 3), never
/// ("hanging": says "ending" and hangs), or not at all, with SIGHUP ignored from the start
/// ("immune"). Watched for a second once its end has begun, its main thread is stuck in a read
/// ("stuck"), where it came after it was to quit ("quitting") or had been asked to and refused
/// ("refusing"). Says "ready" first.
int main(int argc, char** argv) {
    const std::string_view manner = argc > 1 ? argv[1] : "";
    if (manner == "immune") std::signal(SIGHUP, SIG_IGN);
    const QCoreApplication application(argc, argv);
    const auto say = [](const char* word) {
        std::puts(word);
        std::fflush(stdout);
    };
    // However slow the machine, two signals to the orderly one are one request.
    const auto sameRequest = manner == "hanging" ? vantor::TerminationSignals::usualSameRequest
                                                 : std::chrono::milliseconds(std::chrono::hours(1));
    const auto end = [&] {
        say("ending");
        if (manner == "hanging") std::promise<void>().get_future().wait();
        QCoreApplication::exit(3);
    };
    const vantor::TerminationSignals handling(end, sameRequest);
    if (manner == "stuck" || manner == "quitting" || manner == "refusing") {
        vantor::EndWatchdog watchdog(std::chrono::seconds(1));
        if (manner != "stuck") watchdog.ending();
        if (manner == "refusing") watchdog.goesOn();
        say("ready");
        char byte = 0;
        return ::read(STDIN_FILENO, &byte, 1) == 1 ? 1 : 2;
    }
    say("ready");
    return QCoreApplication::exec();
}
