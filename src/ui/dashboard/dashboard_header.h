#pragma once

#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <string_view>

#include "settings/app_settings.h"
#include "ui/components/capsule_button.h"
#include "ui/components/card_frame.h"
#include "ui/components/menu_picker.h"
#include "ui/components/painted_view.h"
#include "ui/translate.h"

namespace vantor {

class VantorHorizontalFit;

/// The product's identity and the controls. Two headers are equal when they show the same.
struct DashboardHeader {
    double refreshInterval = AppSettings::defaultRefreshInterval;  ///< seconds
    bool isPaused = false;
    std::function<void(double)> onRefreshIntervalChange;
    std::function<void()> onTogglePause;
    std::function<void()> onRefresh;
    std::function<void()> onExport;  ///< none: the button is disabled
    std::function<void()> onQuit;

    bool operator==(const DashboardHeader& other) const {
        return refreshInterval == other.refreshInterval && isPaused == other.isPaused;
    }

    QString statusText() const;
    QString pauseTitle() const;
    QString pauseSymbol() const;

    /// "0.5 s", "2 s"; "1 s" for what cannot be an interval.
    static QString intervalText(double seconds);
};

/// A filled dot and a word on a capsule: whether the figures are live.
class StatusPillView : public PaintedView {
  public:
    explicit StatusPillView(QWidget* parent = nullptr);
    void show(bool isPaused);
    bool isPaused() const { return isPaused_; }

    QString accessibleLabel() const override {
        return
            //: for screen readers: whether the figures are live
            translate("DashboardHeader", "Status");
    }
    QString accessibleValueText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool isPaused_ = false;
};

/// The symbol, the name and the line under it.
class IdentityView : public PaintedView {
  public:
    explicit IdentityView(std::string_view subtitle, QWidget* parent = nullptr);

    QAccessible::Role accessibleRole() const override { return QAccessible::Heading; }
    QString accessibleLabel() const override { return QStringLiteral("Vantor"); }
    QString accessibleValueText() const override { return subtitle_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString subtitle_;
};

/// Offers the refresh intervals in a menu; its label is the current one.
class IntervalMenuView : public MenuPickerView {
  public:
    explicit IntervalMenuView(const std::function<void(double)>& onChange,
                              QWidget* parent = nullptr);
    void show(double interval);
};

/// Draws the header and runs its callbacks.
class DashboardHeaderView : public CardFrame {
  public:
    DashboardHeaderView(DashboardHeader header, std::string_view subtitle,
                        std::optional<double> legacyBreakpoint, QWidget* parent = nullptr);

    /// Shows another interval and pause; the callbacks stay those of the construction.
    void show(double refreshInterval, bool isPaused);

    const DashboardHeader& header() const { return header_; }
    VantorHorizontalFit& fit() { return *fit_; }
    StatusPillView& status() { return *status_; }
    IntervalMenuView& interval() { return *interval_; }
    CapsuleButtonView& pauseButton() { return *buttons_[0]; }
    CapsuleButtonView& refreshButton() { return *buttons_[1]; }
    CapsuleButtonView& exportButton() { return *buttons_[2]; }
    CapsuleButtonView& quitButton() { return *buttons_[3]; }

  protected:
    QColor borderColor() const override;

  private:
    QWidget* makeControls();

    DashboardHeader header_;
    VantorHorizontalFit* fit_ = nullptr;  // all owned by this widget, as its children
    StatusPillView* status_ = nullptr;
    IntervalMenuView* interval_ = nullptr;
    std::array<CapsuleButtonView*, 4> buttons_{};
};

}  // namespace vantor
