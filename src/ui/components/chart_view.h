#pragma once

#include <QRectF>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "ui/components/focus_ring.h"
#include "ui/components/painted_view.h"
#include "ui/drawing/view_painter.h"

namespace vantor {

/// What a chart says of one of its samples.
struct ChartReading {
    std::size_t sample = 0;
    QString value;
    QString age;    ///< empty where it is not known
    QString range;  ///< of all that is drawn

    /// All of it in one line.
    QString text() const;
};

/// A chart that can be read: resting the pointer on it, or focusing it and moving with the arrow
/// keys, shows the sample there with a line through it. What is read follows the samples as they
/// move; the newest one stays the newest. Until then it costs a copy of the samples' times.
class ChartView : public PaintedView {
  public:
    using Format = std::function<QString(double)>;

    ChartView(Format format, QWidget* parent);

    /// What the ages are counted to, in seconds of uptime; without one, the newest sample.
    void setClock(std::function<double()> uptime) { uptime_ = std::move(uptime); }

    /// The sample that is read now, if any.
    std::optional<ChartReading> reading() const;

    /// "5 s ago".
    static QString ageText(double seconds);

    /// Where a label of that size goes, beside a line at `x` and within `area`.
    static QRectF labelArea(const QRectF& area, double x, const QSizeF& size);

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QString accessibleValueText() const override;

    /// What its height and its width mean.
    QString accessibleHelp() const override;

  protected:
    virtual std::span<const double> samples() const = 0;
    /// Of shares, 0 and 1; else the height is the smallest to the largest sample.
    virtual std::optional<std::pair<double, double>> fixedRange() const = 0;
    virtual QString newestText() const = 0;
    virtual QRectF chartArea() const = 0;

    /// To be called with every change of the samples, before it is announced.
    void adoptTimes(std::span<const double> times);

    /// To be painted above the chart.
    void paintReading(ViewPainter& painter);

    bool event(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    std::optional<std::size_t> current() const;
    std::optional<double> ageOf(std::size_t sample) const;
    QString rangeText() const;
    QString heightHelp() const;
    double placeOf(std::size_t sample) const;
    void point(std::optional<double> x);
    void choose(std::optional<std::size_t> stepsBack);
    bool moveBy(Qt::Key key);
    void paintLabel(ViewPainter& painter, const ChartReading& reading, double x);

    Format format_;
    std::function<double()> uptime_;
    std::vector<double> times_;             // as many as samples, or none
    std::optional<double> pointer_;         // where it rests
    std::optional<std::size_t> stepsBack_;  // chosen by key, from the newest one
    FocusRing ring_;
};

}  // namespace vantor
