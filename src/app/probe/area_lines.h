#pragma once

#include <memory>

#include "app/probe/report.h"
#include "platform/machine.h"
#include "platform/serial_queue.h"

namespace vantor {

/// Has every reader read twice, a second apart, on its own queue, and reports the second reading of
/// each as one line. Returns whether those answered that do so on any machine: processor, memory,
/// system and processes.
bool reportAreas(const std::shared_ptr<Machine>& machine, BackgroundQueueFactory& queues,
                 Report& report);

/// Writes a file, reads the calendar and ends the queues; returns whether all of it worked.
bool reportServices(BackgroundQueueFactory& queues, Report& report);

}  // namespace vantor
