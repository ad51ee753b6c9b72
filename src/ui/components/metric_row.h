#pragma once

#include <QColor>
#include <QString>

#include <optional>

#include "ui/components/painted_view.h"

namespace vantor {

/// A label and its value, with a dot of colour when the value has one.
struct MetricRow {
    QString label;
    QString value;
    std::optional<QColor> color;
    bool isAbsent = false;  ///< the value says that there is none, and is quieter

    bool operator==(const MetricRow&) const = default;
};

/// The layout of a row's leading parts.
struct MetricRowGeometry {
    std::optional<QRectF> dot;
    double labelLeft = 0;

    static MetricRowGeometry make(double height, bool hasDot);
};

/// Draws a row across its whole width: dot and label leading, the value trailing.
class MetricRowView : public PaintedView {
  public:
    explicit MetricRowView(MetricRow row, QWidget* parent = nullptr);

    void show(const MetricRow& row);
    const MetricRow& row() const { return row_; }

    /// What the figure means, as help.
    void explain(const QString& help);

    QString accessibleLabel() const override { return row_.label; }
    QString accessibleValueText() const override { return row_.value; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void adoptHelp();

    MetricRow row_;
    QString help_;
};

}  // namespace vantor
