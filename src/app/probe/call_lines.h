#pragma once

#include "app/probe/report.h"
#include "platform/machine.h"

namespace vantor {

/// Makes every platform call of a machine and reports the answers.
void reportCalls(Machine& machine, Report& report);

// Its parts, in this order.
void reportSurroundings(ProcessInfo& info, Report& report);
void reportKernel(Machine& machine, Report& report);
void reportProcesses(ProcessTable& table, Report& report);
void reportNetwork(Machine& machine, Report& report);
void reportStorageAndPower(Machine& machine, Report& report);
void reportGraphics(Machine& machine, Report& report);
void reportSensors(Machine& machine, Report& report);

}  // namespace vantor
