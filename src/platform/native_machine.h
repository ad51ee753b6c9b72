#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/atomic_file_writer.h"
#include "platform/local_calendar.h"
#include "platform/machine.h"
#include "platform/name_order.h"
#include "platform/serial_queue.h"

/// What the build's operating system supplies; each folder of adapters defines these once.
namespace vantor {

/// The machine that the program runs on.
std::shared_ptr<Machine> makeNativeMachine();

/// Its disks, and the time zone of its user.
std::shared_ptr<AtomicFileWriter> makeNativeFileWriter();
std::shared_ptr<LocalCalendar> makeNativeLocalCalendar();

/// That of the user's language.
std::unique_ptr<NameOrder> makeNativeNameOrder();

/// Has the allocator take as little memory as a program needs whose threads hardly ever ask at the
/// same time. Before the first other thread.
void tuneMalloc();

/// Returns memory to the system that was only needed for the start. Any thread; takes about a
/// millisecond.
void giveBackUnusedMemory();

/// Queues of its own making. `prepareThread` is called on each thread before it runs tasks, perhaps
/// more than once: for what the program asks of threads that are not the main one.
std::shared_ptr<BackgroundQueueFactory> makeNativeQueueFactory(
    std::function<void()> prepareThread = {});

/// Makes the calling thread a labelled background one of utility priority.
void setUtilityPriority(const std::string& label);

}  // namespace vantor
