#pragma once

#include <QString>

#include <optional>

#include "model/gpu_stats.h"
#include "platform/platform_words.h"
#include "ui/components/painted_view.h"

namespace vantor {

/// What the graphics card says of one device.
struct GraphicsDeviceBlock {
    QString name;
    QString kind;
    QString utilization;
    bool isLoadKnown = false;
    std::optional<QString> workingSet;
    QString note;  ///< what sets its load apart from that of other devices; empty for nothing

    static GraphicsDeviceBlock of(const GPUStats& gpu, const PlatformWords& words);
    bool operator==(const GraphicsDeviceBlock&) const = default;
};

/// Draws a device: its name and load, its kind, and how much memory it is meant to use.
class GraphicsDeviceView : public PaintedView {
  public:
    explicit GraphicsDeviceView(QWidget* parent = nullptr);

    void show(const GraphicsDeviceBlock& block);
    const GraphicsDeviceBlock& block() const { return block_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::ListItem; }
    QString accessibleLabel() const override { return block_.name; }
    QString accessibleValueText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int lineCount() const {
        return 2 + (block_.note.isEmpty() ? 0 : 1) + (block_.workingSet ? 1 : 0);
    }

    GraphicsDeviceBlock block_;
};

}  // namespace vantor
