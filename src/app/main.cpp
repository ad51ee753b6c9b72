#include "app/run_vantor.h"
#include "platform/native_machine.h"

int main(int argc, char** argv) {
    vantor::preferLittleMemory();
    return vantor::runVantor(argc, argv, vantor::makeNativeMachine());
}
