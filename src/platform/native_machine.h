#pragma once

#include <memory>
#include <string>

#include "platform/atomic_file_writer.h"
#include "platform/local_calendar.h"
#include "platform/machine.h"

/// What the build's operating system supplies; each folder of adapters defines these once.
namespace vantor {

/// The machine that the program runs on.
std::shared_ptr<Machine> makeNativeMachine();

/// Its disks, and the time zone of its user.
std::shared_ptr<AtomicFileWriter> makeNativeFileWriter();
std::shared_ptr<LocalCalendar> makeNativeLocalCalendar();

/// Has the allocator take as little memory as a program needs whose threads hardly ever ask at the
/// same time. Before the first other thread.
void preferLittleMemory();

/// Gives memory back that the start took and that nobody uses any more. Any thread; takes about a
/// millisecond.
void giveBackUnusedMemory();

/// Makes the calling thread a labelled background one of utility priority.
void assumeUtilityRole(const std::string& label);

}  // namespace vantor
