#pragma once

#include <QWidget>

#include <functional>
#include <memory>

#include "platform/published.h"
#include "sampling/system_monitor.h"
#include "ui/components/capsule_button.h"
#include "ui/components/speed_tile.h"
#include "ui/drawing/background_view.h"
#include "ui/menu_bar/menu_bar_dashboard.h"
#include "ui/menu_bar/menu_bar_header.h"

class QVBoxLayout;

namespace vantor {

/// The panel of the menu bar item: load of processor and memory, network rates, four actions.
///
/// 330 x 250 points at the reference font, more with a larger one. It subscribes to the monitor
/// only while it is visible and costs nothing otherwise. It shows the cards' own values, and so
/// cannot differ from them. Main thread.
class MenuBarDashboardView : public BackgroundView {
  public:
    struct Environment {
        std::shared_ptr<SystemMonitor> monitor;
        std::function<void()> onQuit;
    };

    /// Without `onOpenDashboard` that action is disabled.
    explicit MenuBarDashboardView(Environment environment,
                                  std::function<void()> onOpenDashboard = {},
                                  QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    StatusDotView& status() { return *status_; }
    MenuMetricView& cpu() { return *cpu_; }
    MenuMetricView& memory() { return *memory_; }
    SpeedTileView& download() { return *download_; }
    SpeedTileView& upload() { return *upload_; }
    CapsuleButtonView& openButton() { return *open_; }
    CapsuleButtonView& pauseButton() { return *pause_; }
    CapsuleButtonView& refreshButton() { return *refresh_; }
    CapsuleButtonView& quitButton() { return *quit_; }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void addHeader(QVBoxLayout& column);
    void addFigures(QVBoxLayout& column, const MenuBarDashboard& waiting);
    void addActions(QVBoxLayout& column, std::function<void()> onOpenDashboard);
    void show(const MenuBarDashboard& dashboard);

    Environment environment_;
    StatusDotView* status_ = nullptr;  // all owned by this widget, as its children
    MenuMetricView* cpu_ = nullptr;
    MenuMetricView* memory_ = nullptr;
    SpeedTileView* download_ = nullptr;
    SpeedTileView* upload_ = nullptr;
    CapsuleButtonView* open_ = nullptr;
    CapsuleButtonView* pause_ = nullptr;
    CapsuleButtonView* refresh_ = nullptr;
    CapsuleButtonView* quit_ = nullptr;
    Subscription stateObservation_;  // while visible
    Subscription pauseObservation_;
};

}  // namespace vantor
