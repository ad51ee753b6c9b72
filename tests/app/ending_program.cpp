#include <QCoreApplication>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <future>
#include <string_view>

#include "app/termination_signals.h"

/// A program that a signal ends: orderly ("orderly": says "ending", leaves with status 3), never
/// ("hanging": says "ending" and hangs), or not at all, with SIGHUP ignored from the start
/// ("immune"). Says "ready" first.
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
    say("ready");
    return QCoreApplication::exec();
}
