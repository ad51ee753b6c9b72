#pragma once

#include <QDeadlineTimer>
#include <QString>

#include <memory>

#include "app/session/activation_server.h"
#include "app/session/instance_claim.h"
#include "platform/file_descriptor.h"

namespace vantor {

/// One program a display, by a lock and a socket in a folder that is the user's alone.
///
/// The lock goes with its process, however that ends; so what a crashed program leaves behind
/// blocks no other, and of two that start at the same moment one has it. SIGPIPE is ignored from
/// the first of these objects on, as the toolkit's own sockets do. Main thread.
class LocalClaim {
  public:
    LocalClaim(const QString& folder, const QString& display, OnActivate onActivate);

    /// Takes no longer than until `deadline`.
    ClaimOutcome claim(const Activation& activation, const QDeadlineTimer& deadline);

    /// The same, without asking a running program.
    ClaimOutcome take();

  private:
    enum class Answer { yes, none, gone };
    Answer ask(const Activation& activation, const QDeadlineTimer& deadline) const;

    QByteArray base_;  // of both paths
    OnActivate onActivate_;
    FileDescriptor lock_;
    std::unique_ptr<ActivationServer> server_;
};

}  // namespace vantor
