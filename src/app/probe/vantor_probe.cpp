#include <cstdlib>
#include <iostream>

#include "app/probe/area_lines.h"
#include "app/probe/call_lines.h"
#include "platform/confinement.h"
#include "platform/native_machine.h"
#include "platform/program_architecture.h"

/// Prints what the platform calls and the readers answer on the machine that it runs on, to check
/// an adapter on a real machine. It writes nothing but one small file that it removes again.
int main() {
    using namespace vantor;
    std::cout << "What this machine answers (program for " << programArchitecture << ")\n";
    Report report(std::cout);
    // Confined like the program: what that took from the readers would be missing below.
    const auto confinement = makeNativeConfinement();
    confinement->confineEarly();
    confinement->confineForRunning(Confinement::Listening::isOver);
    report.line("Confined by the kernel:", confinement->state().text());
    const auto machine = makeNativeMachine();
    reportCalls(*machine, report);
    report.heading("Readers, the second reading of two");
    const auto queues = makeNativeQueueFactory();
    const bool areasAnswer = reportAreas(machine, *queues, report);
    report.heading("Services");
    const bool servicesWork = reportServices(*queues, report);
    std::cout << "\n"
              << (areasAnswer && servicesWork ? "All that must answer has answered."
                                              : "Something that must answer has not.")
              << std::endl;
    // A reader that hangs must not block the program's end.
    std::_Exit(areasAnswer && servicesWork ? EXIT_SUCCESS : EXIT_FAILURE);
}
