#include "sampling/hanging_end.h"

/// Quits while the cpu probe hangs.
int main() {
    return vantor::runUntilStuck(vantor::HangingMachine::Call::processors);
}
