#pragma once

#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "app/session/back_off.h"
#include "app/session/instance_claim.h"

namespace vantor {

class LocalClaim;
class SessionBusClaim;

/// Makes the program the only one in its user's session: the first one goes on, a second start
/// hands over to it what it was started for, and is to end.
///
/// The first one holds a lock in the user's runtime folder, and listens on a socket there: one
/// program a display, whatever becomes of any bus. Where there is a session bus, it owns the name
/// `com.kestrone.Vantor` there, too, and answers as `org.freedesktop.Application`: one program a
/// bus, on whatever display. A start claims both in this order, so that two never wait for each
/// other. A bus that goes and comes back, or comes late, is joined again, and what another program
/// has is taken over once that one is gone. A bus is never started for the purpose, and only one
/// of this machine is used.
///
/// A first program that does not answer within `patience`, and whatever else goes wrong, makes this
/// one a first program as well: better two windows than none.
///
/// Needs the toolkit's application object; main thread. A program that is ending should end this
/// object early: a program that starts meanwhile then becomes the first.
class SingleInstance {
  public:
    enum class Role { first, second };

    struct Surroundings {
        QString busAddress;     ///< of the session bus; empty where there is none
        QString runtimeFolder;  ///< the user's own; empty where there is none
        QString display;        ///< what the windows are on
        std::chrono::milliseconds patience{1000};

        static Surroundings ofProcess();
    };

    /// Claims to be the first, or hands `activation` over to the first.
    explicit SingleInstance(const Activation& activation,
                            const Surroundings& surroundings = Surroundings::ofProcess());
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    Role role() const { return role_; }

    /// Whether another program still has a lock or name that this one waits for.
    bool mayBeginToListen() const { return localRetry_.isActive(); }

    /// Called for later starts; at once for those that came before this call.
    void setOnActivate(OnActivate onActivate);

  private:
    void activate(const Activation& activation);
    Role claim(const Activation& activation, const Surroundings& surroundings);
    void holdLocally();

    OnActivate onActivate_;
    std::vector<Activation> waiting_;  // before setOnActivate
    std::unique_ptr<SessionBusClaim> bus_;
    std::unique_ptr<LocalClaim> local_;
    BackOff localBackOff_;
    QTimer localRetry_;
    Role role_;
};

}  // namespace vantor
