#include "app/run_vantor.h"
#include "platform/native_machine.h"

int main(int argc, char** argv) {
    return vantor::runVantor(argc, argv, vantor::makeNativeMachine());
}
