#include <memory>

#include "app/run_vantor.h"
#include "platform/confinement.h"
#include "platform/native_machine.h"

int main(int argc, char** argv) {
    vantor::tuneMalloc();
    const std::shared_ptr<vantor::Confinement> confinement = vantor::makeNativeConfinement();
    confinement->confineEarly();
    return vantor::runVantor(argc, argv, vantor::makeNativeMachine(), confinement);
}
