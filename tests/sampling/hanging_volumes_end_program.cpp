#include "sampling/hanging_end.h"

/// Quits while the storage probe hangs.
int main() {
    return vantor::runUntilStuck(vantor::HangingMachine::Call::volumes);
}
