#pragma once

#include <QColor>
#include <QString>

#include "model/volume_stats.h"
#include "ui/components/painted_view.h"

namespace vantor {

/// What the storage's card says of one volume.
struct VolumeBlock {
    QString symbol;
    QString name;
    double usedFraction = 0;
    QColor accent;  ///< red from nine tenths on
    QString usedText;
    QString freeText;
    QString help;  ///< where it is mounted, and what is special about it

    static VolumeBlock of(const VolumeStats& volume);
    bool operator==(const VolumeBlock&) const = default;
};

/// Draws a volume: symbol and name, a bar, and what is used and free.
class VolumeView : public PaintedView {
  public:
    explicit VolumeView(QWidget* parent = nullptr) : VolumeView(VolumeBlock{}, parent) {}
    explicit VolumeView(VolumeBlock block, QWidget* parent = nullptr);

    void show(const VolumeStats& volume);
    const VolumeBlock& block() const { return block_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ProgressBar; }
    QString accessibleLabel() const override { return block_.name; }
    QString accessibleValueText() const override;
    std::optional<double> accessibleFraction() const override { return block_.usedFraction; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    VolumeBlock block_;
};

}  // namespace vantor
