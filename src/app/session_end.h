#pragma once

#include <QGuiApplication>
#include <QObject>

#include <functional>

namespace vantor {

/// What a session manager (X11, and whatever else the toolkit knows of) is told: save what there is
/// to save, at once and without questions, and do not start the program again by itself.
///
/// The session's end never waits for us. A desktop that starts programs of the last session again
/// would start a second one beside the one that the user's autostart brings. Main thread.
class SessionEnd {
  public:
    /// `save` is called when the session is about to end, and at mere checkpoints too: the program
    /// may well go on after it.
    SessionEnd(QGuiApplication& application, std::function<void()> save);

  private:
    QObject context_;  // its end ends the connections
};

}  // namespace vantor
