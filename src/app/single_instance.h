#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

#include "app/instance_claim.h"

namespace vantor {

class LocalClaim;
class SessionBusClaim;

/// Makes the program one of a kind in its user's session: the first one goes on, a second start
/// asks it to come forward and is to end.
///
/// Where there is a session bus, its owner of the name `com.kestrone.Vantor` is the first, and
/// answers as `org.freedesktop.Application`: one program a bus. Without one, it is who holds a lock
/// in the user's runtime folder, and listens on a socket there: one program a display. A bus is
/// never started for the purpose, and none is spoken to that is not on this machine.
///
/// A first program that does not answer within `patience`, and whatever else goes wrong, makes this
/// one a first program as well: better two windows than none.
///
/// Needs the toolkit's application object; main thread. A program that is ending should end this
/// object early: who starts meanwhile then becomes the first.
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

    /// Claims to be the first, or hands `activationToken` over to who is.
    explicit SingleInstance(const QString& activationToken,
                            const Surroundings& surroundings = Surroundings::ofProcess());
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    Role role() const { return role_; }

    /// Whom to tell of later starts. One that came before is told of at once.
    void setOnActivate(OnActivate onActivate);

  private:
    void activate(const QString& token);
    Role claim(const QString& token, const Surroundings& surroundings);

    OnActivate onActivate_;
    std::unique_ptr<QString> waiting_;  // the token of who came before anybody could be told
    std::unique_ptr<SessionBusClaim> bus_;
    std::unique_ptr<LocalClaim> local_;
    Role role_;
};

}  // namespace vantor
