#include "app/appearance/native_desktop_appearance.h"
#include "app/appearance/portal_appearance.h"
#include "app/qt_main_loop.h"
#include "app/session/termination_signals.h"
#include "platform/native_machine.h"

namespace vantor {

std::shared_ptr<DesktopAppearance> makeNativeDesktopAppearance() {
    const auto connecting = std::make_shared<PatientQuestions>(
        makeNativeQueueFactory([] { TerminationSignals::keepFromThisThread(); }),
        std::make_shared<QtMainLoop>());
    return std::make_shared<PortalAppearance>(connecting, connectToSessionBus);
}

}  // namespace vantor
