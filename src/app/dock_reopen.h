#pragma once

#include <QObject>

#include <functional>

namespace vantor {

/// Tells that the user has come back to a program that shows nothing: on desktops with a dock, a
/// click on the icon of a running program activates it and starts no second one.
///
/// Whatever is on the screen by the next turn of the loop, a panel or a menu included, is taken for
/// what the program was activated by. The toolkit tells a click on the icon and any other way to a
/// program that has no window alike. Main thread.
class DockReopen {
  public:
    /// Needs the toolkit's application object. `onReopen` is not called after this object's end.
    explicit DockReopen(std::function<void()> onReopen);

  private:
    void lookAround();

    std::function<void()> onReopen_;
    bool willLook_ = false;
    QObject context_;  // its end ends the connection, and what it has posted
};

}  // namespace vantor
