#pragma once

#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace vantor {

/// One entry of the plain menu of a status item.
struct StatusMenuEntry {
    QString title;                 ///< empty: a line between groups
    std::function<void()> action;  ///< none: a text only
};

/// The content and actions of a status item.
struct StatusItemContent {
    QString title;       ///< also for assistive technology
    QString symbolName;  ///< of the program's own symbols
    /// The user pressed it; `area` is its place on the screen, empty where unknown.
    std::function<void(QRect area)> onPress;
    /// Called each time before the menu opens.
    std::function<std::vector<StatusMenuEntry>()> menu;
    /// Called when somebody asks for it; none: the title.
    std::function<QString()> toolTip = {};
};

/// An item in the status bar, for as long as the object lives. Main thread.
class StatusItem {
  public:
    virtual ~StatusItem() = default;

    /// Its tool tip says something else now. Desktops that keep what they were told ask again.
    virtual void toolTipChanged() {}
};

/// The desktop's tray. It may not be there yet, or not any more: items are made all the same and
/// appear with it. Main thread.
class StatusBar {
  public:
    virtual ~StatusBar() = default;

    virtual bool isAvailable() const = 0;

    /// Called when the tray appears or vanishes; one listener.
    virtual void listen(std::function<void()> onChange) = 0;

    virtual std::unique_ptr<StatusItem> makeItem(StatusItemContent content) = 0;
};

}  // namespace vantor
