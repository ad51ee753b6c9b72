#include <unistd.h>

#include <memory>

#include "app/files/linux_save_dialogs.h"
#include "app/files/native_save_dialogs.h"
#include "app/qt_main_loop.h"
#include "app/session/bus_line.h"
#include "app/session/termination_signals.h"
#include "platform/native_machine.h"

namespace vantor {

namespace {

/// A thread that waits for a disk may outlive the program's end, where the disk has taken the
/// request and never answers. It must not keep the program's connections and files open as well.
void prepareDiskThread() {
    TerminationSignals::keepFromThisThread();
#ifdef CLOSE_RANGE_UNSHARE
    ::close_range(0, ~0U, CLOSE_RANGE_UNSHARE);
#endif
}

}  // namespace

std::shared_ptr<SaveDialogs> makeNativeSaveDialogs() {
    const auto mainLoop = std::make_shared<QtMainLoop>();
    return std::make_shared<LinuxSaveDialogs>(LinuxSaveDialogs::Surroundings{
        .disk =
            std::make_shared<PatientQuestions>(makeNativeQueueFactory(prepareDiskThread), mainLoop),
        // Not the queues for the disk: the threads that the toolkit starts for the bus need the
        // program's files.
        .bus = std::make_shared<PatientQuestions>(
            makeNativeQueueFactory([] { TerminationSignals::keepFromThisThread(); }), mainLoop,
            PortalSaveDialog::usualPatience),
        .connect = connectToSessionBus});
}

}  // namespace vantor
