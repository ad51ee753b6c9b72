#pragma once

#include <QObject>

#include <functional>

namespace vantor {

/// Reports that the user has returned to a program that shows nothing: on desktops with a dock, a
/// click on the icon of a running program activates it and starts no second one.
///
/// If anything is on the screen by the next turn of the loop, a panel or a menu included, that was
/// the reason for the activation. The toolkit does not distinguish a click on the icon from other
/// ways to a program without a window. Main thread.
class DockReopen {
  public:
    /// Needs the toolkit's application object. `onReopen` is not called after this object's end.
    explicit DockReopen(std::function<void()> onReopen);

  private:
    void lookAround();

    std::function<void()> onReopen_;
    bool willLook_ = false;
    QObject context_;  // destroying it ends the connection and drops posted tasks
};

}  // namespace vantor
