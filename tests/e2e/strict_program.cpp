#include <cstdlib>
#include <memory>

#include "app/run_vantor.h"
#include "platform/linux/confinement/linux_confinement.h"
#include "platform/native_machine.h"

/// The program as it is, but that a call it is denied ends it: nothing it does may be among them.
int main(int argc, char** argv) {
    vantor::tuneMalloc();
    const char* const display = std::getenv("DISPLAY");
    const auto confinement = std::make_shared<vantor::LinuxConfinement>(
        display ? display : "", vantor::Denial::endsTheProcess);
    confinement->confineEarly();
    return vantor::runVantor(argc, argv, vantor::makeNativeMachine(), confinement);
}
