#include <unistd.h>

#include <memory>

#include "app/qt_main_loop.h"
#include "app/save/linux_save_dialogs.h"
#include "app/save/native_save_dialogs.h"
#include "app/session_places.h"
#include "app/termination_signals.h"
#include "platform/native_machine.h"

namespace vantor {

namespace {

/// A thread that waits for a disk outlives the program's end where the disk has taken the question
/// and says nothing. It must not keep the program's connections and files open as well.
void prepareDiskThread() {
    TerminationSignals::keepFromThisThread();
#ifdef CLOSE_RANGE_UNSHARE
    ::close_range(0, ~0U, CLOSE_RANGE_UNSHARE);
#endif
}

QDBusConnection connectToSessionBus(const QString& name) {
    const QString address = sessionBusAddress();
    // To an address that is none the toolkit would connect nothing, and remember it by its name.
    if (address.isEmpty()) return QDBusConnection(name);
    return QDBusConnection::connectToBus(address, name);
}

}  // namespace

std::shared_ptr<SaveDialogs> makeNativeSaveDialogs() {
    const auto mainLoop = std::make_shared<QtMainLoop>();
    return std::make_shared<LinuxSaveDialogs>(LinuxSaveDialogs::Surroundings{
        .disk =
            std::make_shared<PatientQuestions>(makeNativeQueueFactory(prepareDiskThread), mainLoop),
        // Not those of the disk: what the toolkit starts for the bus needs the program's files.
        .bus = std::make_shared<PatientQuestions>(
            makeNativeQueueFactory([] { TerminationSignals::keepFromThisThread(); }), mainLoop,
            PortalSaveDialog::usualPatience),
        .connect = connectToSessionBus});
}

}  // namespace vantor
