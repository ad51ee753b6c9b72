#pragma once

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QString>

#include <memory>

#include "app/instance_claim.h"

namespace vantor {

/// The program's name on the session bus, and what it answers there: `org.freedesktop.Application`
/// at `/com/kestrone/Vantor`. Main thread.
class SessionBusClaim {
  public:
    /// Connects to the bus, over a connection of its own.
    SessionBusClaim(const QString& address, OnActivate onActivate);
    SessionBusClaim(const SessionBusClaim&) = delete;
    SessionBusClaim& operator=(const SessionBusClaim&) = delete;
    /// Gives the name up.
    ~SessionBusClaim();

    /// To be called once. Takes no longer than until `deadline`, provided that the bus works.
    ClaimOutcome claim(const QString& token, const QDeadlineTimer& deadline);

  private:
    class Application;

    enum class Name { ours, taken, unknown };
    Name requestName(const QDeadlineTimer& deadline);

    QString connectionName_;
    std::unique_ptr<Application> application_;
    QDBusConnection connection_;
};

}  // namespace vantor
