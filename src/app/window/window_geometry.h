#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/window/window_placement.h"
#include "platform/main_loop.h"
#include "settings/defaults_store.h"

namespace vantor {

/// Keeps a window's frame under a name, from one run of the program to the next.
///
/// Made before the window is shown, it puts it where it was; when the window is shown again and
/// the screens have changed meanwhile, it moves it back onto one. A maximised window stays so, with
/// the size it had before. The place is that of what the frame encloses, so that a window does not
/// drift by its frame from run to run. Where the window system does not report positions, only
/// sizes are kept, and a position from elsewhere is left as it is.
///
/// What the user changes is written when the window is hidden or closed, with this object's end,
/// and otherwise at most once in `writeInterval`. A place that the program itself chose, because
/// the window's screen was away, is not written: with the screen, the window comes back. A
/// malformed text in the store counts as none.
///
/// Main thread. To be destroyed before the window.
class WindowGeometry : public QObject {
  public:
    static constexpr std::chrono::seconds writeInterval{3};

    /// The screens. The default is the toolkit's.
    struct Surroundings {
        std::function<std::vector<QRect>()> availableAreas;  ///< the primary screen's first
        bool tellsPositions = true;

        static Surroundings ofToolkit();
    };

    /// The file for the frames of windows: beside the one for preferences.
    static QString fileBeside(const QString& settingsFile);

    WindowGeometry(QWidget& window, std::string name, std::shared_ptr<DefaultsStore> store,
                   std::shared_ptr<MainLoop> mainLoop,
                   Surroundings surroundings = Surroundings::ofToolkit());
    WindowGeometry(const WindowGeometry&) = delete;
    WindowGeometry& operator=(const WindowGeometry&) = delete;
    ~WindowGeometry() override;

    /// Writes changes now. For a session that is about to end.
    void save();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void restore();
    void refit();
    void apply(const WindowPlacement& placement);
    void noteChange();
    void settle();
    void look();
    bool isWorthWriting() const;
    WindowPlacement fitted(const WindowPlacement& wish) const;

    QPointer<QWidget> window_;
    std::string name_;
    std::shared_ptr<DefaultsStore> store_;
    std::shared_ptr<MainLoop> mainLoop_;
    Surroundings surroundings_;

    std::optional<WindowPlacement> stored_;
    std::optional<WindowPlacement> chosen_;  // by this object, and not by the user
    WindowPlacement current_;
    bool isShown_ = false;
    MainLoop::TimerID settleTimer_ = 0;
    MainLoop::TimerID writeTimer_ = 0;
    bool hasChangedAgain_ = false;  // since the settle timer was started
};

}  // namespace vantor
