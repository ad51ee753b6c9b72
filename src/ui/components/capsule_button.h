#pragma once

#include <QAbstractButton>
#include <QString>

#include <functional>

#include "ui/components/focus_ring.h"
#include "ui/drawing/view_painter.h"

namespace vantor {

/// A text with a symbol on a capsule, and its action.
struct CapsuleButton {
    QString title;
    QString systemImage;  ///< a symbol's name
    std::function<void()> action;
};

/// The button. Its accessible name is its title.
class CapsuleButtonView : public QAbstractButton {
  public:
    explicit CapsuleButtonView(CapsuleButton button, QWidget* parent = nullptr);

    /// Shows another title and symbol; the width stays enough for the widest title so far, so that
    /// the buttons beside it do not move.
    void show(const QString& title, const QString& systemImage);

    /// Makes room for a title that may be shown later.
    void reserveWidthFor(const QString& title);

    const QString& systemImage() const { return systemImage_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// Whether the symbol follows the title instead of leading it.
    virtual bool isSymbolTrailing() const { return false; }

  private:
    double widthFor(const QString& title) const;
    void paintBackground(ViewPainter& painter) const;
    void paintLabel(ViewPainter& painter) const;

    QString systemImage_;
    QString widestTitle_;
    FocusRing ring_;
};

}  // namespace vantor
