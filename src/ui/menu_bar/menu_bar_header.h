#pragma once

#include <QColor>
#include <QString>

#include "ui/components/painted_view.h"
#include "ui/translate.h"

namespace vantor {

/// The product's symbol and name.
class MenuBarTitleView : public PaintedView {
  public:
    explicit MenuBarTitleView(QWidget* parent = nullptr);

    QAccessible::Role accessibleRole() const override { return QAccessible::Heading; }
    QString accessibleLabel() const override { return QStringLiteral("Vantor"); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A dot whose colour shows whether the figures are live; its tool tip has it in words.
class StatusDotView : public PaintedView {
  public:
    explicit StatusDotView(QWidget* parent = nullptr);

    /// A transparent dot is drawn as an outline.
    void show(const QColor& color, const QString& text);
    const QColor& color() const { return color_; }

    QString accessibleLabel() const override {
        return
            //: for screen readers: whether the figures are live
            translate("MenuBarDashboard", "Status");
    }
    QString accessibleValueText() const override { return text_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor color_ = Qt::transparent;
    QString text_;
};

}  // namespace vantor
