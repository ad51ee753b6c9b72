#pragma once

#include <QScrollArea>
#include <QScrollBar>
#include <QVariantAnimation>

namespace vantor {

/// A slim scroll bar without arrows.
class SlimScrollBar : public QScrollBar {
  public:
    explicit SlimScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr)
        : QScrollBar(orientation, parent) {}
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

/// A plain scroll view along the given axes, on the background of its parent.
class LegacyVantorScrollView : public QScrollArea {
  public:
    explicit LegacyVantorScrollView(Qt::Orientations axes, QWidget* parent = nullptr);
};

/// The same with the slim bar, and gliding where a wheel would make the page jump.
class VantorScrollView : public LegacyVantorScrollView {
  public:
    explicit VantorScrollView(Qt::Orientations axes, QWidget* parent = nullptr);

    /// Where the page is gliding to; its position when it rests.
    int destination() const;

    /// The animation of the page; for tests with manual time.
    QVariantAnimation& glide() { return glide_; }

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    QVariantAnimation glide_;
    int lastStep_ = 0;  // where the glide has put the page
};

}  // namespace vantor
