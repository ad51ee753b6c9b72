#pragma once

#include <QDBusConnection>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

#include "app/files/patient_questions.h"
#include "app/files/portal_save_dialog.h"
#include "app/qt_main_loop.h"
#include "app/session/instance_world.h"
#include "platform/threads/threaded_serial_queue.h"
#include "support/fake_portal.h"

namespace vantor {

/// A session whose bus has a portal, or none.
struct PortalWorld {
    using Manner = FakePortal::Manner;

    ~PortalWorld() { threads->waitForThreads(std::chrono::seconds(20)); }

    void startPortal(Manner manner = Manner::honest) { portal.emplace(bus.address(), manner); }

    BusLine::Connect connector() const {
        return [address = bus.address()](const QString& name) {
            return QDBusConnection::connectToBus(address, name);
        };
    }

    SessionBus bus;
    std::optional<FakePortal> portal;
    std::shared_ptr<QtMainLoop> loop = std::make_shared<QtMainLoop>();
    std::shared_ptr<ThreadedSerialQueueFactory> threads =
        std::make_shared<ThreadedSerialQueueFactory>();
    std::shared_ptr<PatientQuestions> questions =
        std::make_shared<PatientQuestions>(threads, loop, std::chrono::seconds(20));
};

}  // namespace vantor
