#pragma once

#include <QElapsedTimer>
#include <QRect>
#include <QWidget>

#include <memory>

namespace vantor {

/// The place of a popover of that size beside `anchor` on a screen: under it, else over it, never
/// beyond the screen's edges. Without an anchor, in the screen's corner where trays are.
QPoint popoverPlace(QSize size, const QRect& anchor, const QRect& screen, Qt::LayoutDirection way);

/// A small window beside the status item. Transient: it closes when the user clicks elsewhere, or
/// presses Escape. Keeps its content from one opening to the next.
class PopoverWindow : public QWidget {
  public:
    explicit PopoverWindow(std::unique_ptr<QWidget> content);

    void open(const QRect& anchor);
    QWidget& content() { return *content_; }

    /// Whether it closed so recently that the click that closed it may be the one on the item.
    bool hasJustClosed() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void focusFirst();

    QWidget* content_;           // owned by this widget, as its child
    QElapsedTimer sinceClosed_;  // not started before it closed, and where that does not matter
};

}  // namespace vantor
