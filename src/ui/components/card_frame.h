#pragma once

#include <QWidget>

namespace vantor {

/// The rounded background of a card or of the header, with a thin border. On a BackgroundView it
/// paints the background under it as well and is opaque, so that nothing is painted twice.
class CardFrame : public QWidget {
  public:
    explicit CardFrame(QWidget* parent = nullptr) : QWidget(parent) {}

  protected:
    virtual QColor borderColor() const = 0;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantor
