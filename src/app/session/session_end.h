#pragma once

#include <QGuiApplication>
#include <QObject>

#include <functional>

namespace vantor {

/// Answers a session manager (X11, and others that the toolkit supports): saves at once and without
/// questions, and asks not to be restarted.
///
/// The session's end never waits for the program. A desktop that restarts the programs of the last
/// session would start a second one beside the one of the user's autostart. Main thread.
class SessionEnd {
  public:
    /// `save` is called when the session is about to end, and at mere checkpoints too: the program
    /// may go on after it.
    SessionEnd(QGuiApplication& application, std::function<void()> save);

  private:
    QObject context_;  // destroying it ends the connections
};

}  // namespace vantor
