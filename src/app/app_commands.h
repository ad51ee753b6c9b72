#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QMenuBar;
class QWidget;

namespace vantor {

/// The program's menu commands with their keys, the same in each window. On desktops that have one
/// menu bar for all programs the toolkit moves them there; some have it for windows alone, and some
/// for the program as a whole. Main thread.
class AppCommands : public QObject {
  public:
    struct Actions {
        std::function<void()> about;
        std::function<void()> refresh;
        std::function<void()> exportSnapshot;
        std::function<void()> settings;
        std::function<void()> help;
        std::function<void()> quit;
    };

    /// Where all windows share one menu bar, it is made at once and belongs to none of them.
    explicit AppCommands(const Actions& actions, bool sharesMenuBar = false);
    ~AppCommands() override;

    /// Null where each window has its own.
    QMenuBar* sharedMenuBar() const { return sharedBar_.get(); }

    /// The menu bar of the main window, to be put into it by the caller.
    QMenuBar* makeMenuBar(QWidget* window);

    /// Gives a window without a menu bar the same keys.
    void addTo(QWidget* window);

    const std::vector<QAction*>& all() const { return all_; }

  private:
    QAction* add(const QString& title, const std::vector<QString>& keys,
                 const std::function<void()>& run);
    QAction* closing(QWidget* window);
    void fill(QMenuBar& bar, QAction* closing);

    std::vector<QAction*> all_;  // owned by this object, as its children
    QAction* about_;
    QAction* refresh_;
    QAction* export_;
    QAction* settings_;
    QAction* help_;
    QAction* quit_;
    std::unique_ptr<QMenuBar> sharedBar_;
};

}  // namespace vantor
