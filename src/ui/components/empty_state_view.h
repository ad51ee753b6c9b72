#pragma once

#include <QString>

#include <optional>

#include "ui/components/painted_view.h"

namespace vantor {

/// Explains why there is nothing to show.
struct EmptyState {
    QString title;
    QString systemImage;  ///< a symbol's name
    QString message;

    bool operator==(const EmptyState&) const = default;
};

/// Draws it in the middle of its width; the message breaks into lines.
class EmptyStateView : public PaintedView {
  public:
    explicit EmptyStateView(EmptyState state, QWidget* parent = nullptr);

    void show(const EmptyState& state);
    const EmptyState& state() const { return state_; }

    QString accessibleLabel() const override { return state_.title; }
    QString accessibleValueText() const override { return state_.message; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool certainlyFits(double width, double height) const;
    double heightAboveMessage() const;
    double messageHeight(double width) const;
    double contentHeight(double width) const;

    EmptyState state_;
    mutable std::optional<double> messageAdvance_;  // in one line
};

}  // namespace vantor
