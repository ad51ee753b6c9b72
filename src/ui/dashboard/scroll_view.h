#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace vantor {

/// A slim bar without arrows that keeps out of the way of what it scrolls.
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

/// A plain scroll view along the given axes, on the ground of whatever is behind it.
class LegacyVantorScrollView : public QScrollArea {
  public:
    explicit LegacyVantorScrollView(Qt::Orientations axes, QWidget* parent = nullptr);
};

/// The same with the slim bar.
class VantorScrollView : public LegacyVantorScrollView {
  public:
    explicit VantorScrollView(Qt::Orientations axes, QWidget* parent = nullptr);
};

}  // namespace vantor
