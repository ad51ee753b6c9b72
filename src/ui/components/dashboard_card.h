#pragma once

#include <QColor>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

#include <optional>

#include "ui/components/card_frame.h"
#include "ui/components/painted_view.h"

namespace vantor {

/// The frame that each section of the dashboard lives in: a symbol, a title, an optional line under
/// it, and the section's own colour.
struct DashboardCard {
    QString title;
    std::optional<QString> subtitle;
    QString icon;  ///< a symbol's name
    QColor accent;

    bool operator==(const DashboardCard&) const = default;
};

/// The card's first row.
class CardHeaderView : public PaintedView {
  public:
    explicit CardHeaderView(DashboardCard card, QWidget* parent = nullptr);

    void show(const DashboardCard& card);
    const DashboardCard& card() const { return card_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::Heading; }
    QString accessibleLabel() const override { return card_.title; }
    QString accessibleValueText() const override { return card_.subtitle.value_or(QString()); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double textHeight() const;

    DashboardCard card_;
};

/// The whole card; a section's views go into body(), top to bottom.
class DashboardCardView : public CardFrame {
  public:
    explicit DashboardCardView(const DashboardCard& card, QWidget* parent = nullptr);

    void showCard(const DashboardCard& card) { header_->show(card); }
    CardHeaderView& header() { return *header_; }

    /// All that the card shows, in one sentence: "CPU, 2 physical..., CPU Load 37%, User ...".
    QString summary() const;
    QVBoxLayout& body() { return *body_; }

  protected:
    QColor borderColor() const override;

  private:
    CardHeaderView* header_;  // owned by this widget, as its child
    QVBoxLayout* body_;       // owned by this widget, as its layout
};

}  // namespace vantor
