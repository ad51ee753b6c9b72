#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

#include "platform/machine.h"
#include "platform/main_loop.h"
#include "platform/published.h"
#include "sampling/system_monitor.h"
#include "settings/app_settings.h"
#include "ui/app_metadata.h"
#include "ui/dashboard/adaptive_grid.h"
#include "ui/dashboard/dashboard_cards.h"
#include "ui/dashboard/last_update_text.h"
#include "ui/drawing/background_view.h"

class QMenuBar;

namespace vantor {

class DashboardHeaderView;
class ProcessExplorerView;
class TextLineView;
class VantorHorizontalFit;

/// The content of the main window: header, cards, process explorer and footer in one scroll view
/// over the theme's background. Starts the sampling when it first appears; shows whatever the
/// monitor publishes, while it can be seen.
class DashboardView : public BackgroundView {
  public:
    struct Environment {
        std::shared_ptr<AppSettings> settings;
        std::shared_ptr<SystemMonitor> monitor;
        std::shared_ptr<Machine> machine;
        std::shared_ptr<MainLoop> mainLoop;
        const AppMetadata& metadata;
        AdaptiveColumns dashboardColumns;
        std::function<void()> onQuit;
        /// Called once, after the first live figures have been painted.
        std::function<void()> onFirstLiveFrame;
    };

    explicit DashboardView(Environment environment, QWidget* parent = nullptr);
    ~DashboardView() override;

    /// Puts a menu bar above the content; the desktop may show it elsewhere.
    void setMenuBar(QMenuBar* bar);

    DashboardHeaderView& header() { return *header_; }
    template <class View>
    View& card() {
        return cards_->get<View>();
    }
    ProcessExplorerView& explorer() { return *explorer_; }
    TextLineView& lastUpdate() { return *lastUpdate_; }
    VantorHorizontalFit& footer() { return *footer_; }

  protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void build();
    void addHeader(QWidget* content);
    void addCards(QWidget* content);
    void addFooter(QWidget* content);
    std::optional<double> breakpoint(double legacy) const;
    QWidget* makeScrollView(QWidget* content);
    void observe();
    void show(const DashboardState& state);
    bool isSeen() const;
    void showIfSeen(const DashboardState& state);
    void catchUp();
    void reportFirstLiveFrame();
    void fitFirstScreen();

    Environment environment_;
    DashboardHeaderView* header_ = nullptr;  // all owned by this widget, as its children
    std::optional<DashboardCards> cards_;
    ProcessExplorerView* explorer_ = nullptr;
    VantorHorizontalFit* footer_ = nullptr;
    TextLineView* lastUpdate_ = nullptr;
    Subscription stateObservation_;
    Subscription pauseObservation_;
    Subscription intervalObservation_;
    LastUpdateText lastUpdateText_;
    bool hasShownLiveData_ = false;
    bool isBehind_ = false;  ///< what it shows is not the latest
};

}  // namespace vantor
