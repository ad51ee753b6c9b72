#pragma once

#include <QAbstractButton>
#include <QString>

#include <functional>

#include "ui/components/focus_ring.h"

namespace vantor {

/// A text and a switch that is on or off; the whole row is what can be clicked. The text breaks
/// into lines where it must.
class ToggleRowView : public QAbstractButton {
  public:
    enum class Switch { trailing, leading };

    /// The row's margin at each side for the focus ring: it has to be placed that much further out
    /// than what it should be aligned with.
    static constexpr int outset = 3;

    /// `onChange` is called for the user's changes only.
    ToggleRowView(const QString& title, Switch place, std::function<void(bool)> onChange,
                  QWidget* parent = nullptr);

    void show(bool isOn);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QRectF switchArea() const;  ///< in this widget
    QRectF textArea() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    double textHeight(double width) const;
    void paintSwitch(QPainter& painter) const;

    Switch place_;
    FocusRing ring_;
};

}  // namespace vantor
