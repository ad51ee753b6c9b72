#pragma once

#include <QColor>
#include <QString>

#include <optional>

#include "model/power_stats.h"
#include "platform/process_info.h"
#include "ui/components/painted_view.h"

namespace vantor {

/// What the system's card says of the battery.
struct PowerBlock {
    QString symbol;
    QString text;    ///< where the power comes from
    QString charge;  ///< whole percent
    QColor color;    ///< of the charge; the symbol has it, a text in it would be hard to read
    QString help;    ///< time left and age, where known

    static PowerBlock of(const PowerStats& power, const ProcessInfo& versions);

    /// Red below a fifth, orange below two fifths, else green; green without a battery.
    static QColor chargeColor(const std::optional<PowerStats>& power);

    bool operator==(const PowerBlock&) const = default;
};

/// Draws it as a row: symbol and text leading, the charge trailing.
class PowerView : public PaintedView {
  public:
    explicit PowerView(QWidget* parent = nullptr);

    void show(const PowerBlock& block);
    const PowerBlock& block() const { return block_; }

    QString accessibleLabel() const override { return block_.text; }
    QString accessibleValueText() const override { return block_.charge; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PowerBlock block_;
};

}  // namespace vantor
