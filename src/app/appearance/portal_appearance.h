#pragma once

#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

#include "app/appearance/desktop_appearance.h"
#include "app/files/bus_signal.h"
#include "app/files/patient_questions.h"
#include "app/session/back_off.h"
#include "app/session/bus_line.h"

namespace vantor {

/// The look as the desktop's portal tells it (org.freedesktop.portal.Settings, its namespace
/// org.freedesktop.appearance), from the first answer on. A portal that is restarted or comes late
/// is asked again, and a bus that is lost is joined again; what was known stays meanwhile. Nothing
/// here waits for the bus. Main thread.
class PortalAppearance : public DesktopAppearance {
  public:
    /// Begins to ask. `questions` is for connections.
    PortalAppearance(std::shared_ptr<PatientQuestions> questions, BusLine::Connect connect);
    PortalAppearance(const PortalAppearance&) = delete;
    PortalAppearance& operator=(const PortalAppearance&) = delete;
    ~PortalAppearance() override;

    Published<DesktopLook>& look() override { return look_; }

  private:
    void join();
    void tryLater();
    void listen();
    void ask();
    void ask(const QString& key);
    void changed(const QDBusMessage& message);
    void takeUp(const QString& key, const QVariant& value);

    std::shared_ptr<PatientQuestions> questions_;
    BusLine::Connect connect_;
    Published<DesktopLook> look_{DesktopLook{}};
    PatientQuestions::Question connecting_;
    std::shared_ptr<BusLine> line_;
    QString portal_;  // its unique name, once it has answered
    std::unique_ptr<QDBusServiceWatcher> owner_;
    BusSignal change_;
    BusSignal lineEnd_;
    std::unique_ptr<QObject> answers_;  // what is asked now; those before count no more
    BackOff backOff_;
    QTimer retry_;
};

}  // namespace vantor
