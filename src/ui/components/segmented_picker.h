#pragma once

#include <QAbstractButton>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

#include "ui/components/focus_ring.h"

namespace vantor {

/// One of a picker's choices.
class SegmentButton : public QAbstractButton {
  public:
    explicit SegmentButton(const QString& title, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    FocusRing ring_;
};

/// A label, and a few choices of which one is current. The arrow keys change it.
class SegmentedPicker : public QWidget {
  public:
    /// The first choice is current; `onChange` is called for every other one.
    SegmentedPicker(const QString& label, const QStringList& choices,
                    std::function<void(int)> onChange, QWidget* parent = nullptr);

    /// For a label that is shown elsewhere: it is only accessible, not shown.
    void hideLabel();

    int choice() const;
    void choose(int index);
    SegmentButton& button(int index) { return *buttons_.at(static_cast<std::size_t>(index)); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void adoptTabStop();

    QWidget* label_ = nullptr;  // all owned by this widget, as its children
    std::vector<SegmentButton*> buttons_;
};

}  // namespace vantor
