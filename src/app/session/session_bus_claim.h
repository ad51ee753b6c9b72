#pragma once

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QString>
#include <QTimer>

#include <memory>
#include <optional>

#include "app/session/back_off.h"
#include "app/session/instance_claim.h"

namespace vantor {

/// The program's name on the session bus, and its object there: `org.freedesktop.Application`
/// at `/com/kestrone/Vantor`. Main thread.
class SessionBusClaim {
  public:
    /// Connects to the bus in claim() or hold(), over a connection of its own.
    SessionBusClaim(const QString& address, OnActivate onActivate);
    SessionBusClaim(const SessionBusClaim&) = delete;
    SessionBusClaim& operator=(const SessionBusClaim&) = delete;
    /// Gives the name up.
    ~SessionBusClaim();

    /// To be called once. Takes no longer than until `deadline`, provided that the bus works.
    ClaimOutcome claim(const Activation& activation, const QDeadlineTimer& deadline);

    /// From now on owns the name, or queues for it until its owner leaves; and joins a bus that is
    /// not there yet, or was lost, trying again after half a second, doubling up to a minute.
    void hold();

  private:
    class Application;

    enum class Name { ours, taken, unknown };
    bool connect();
    void disconnect();
    void waitInLine();
    void tryLater();
    Name requestName(const QDeadlineTimer& deadline);

    QString address_;
    QString connectionName_;
    std::unique_ptr<Application> application_;
    std::optional<QDBusConnection> connection_;
    bool isHolding_ = false;
    bool isOwner_ = false;
    QTimer lost_;  // runs out after a loss: the connection must outlive its own signal
    BackOff backOff_;
    QTimer retry_;
};

}  // namespace vantor
