#pragma once

#include <QWidget>

namespace vantor {

/// The rounded ground of a card or of the header, with a thin border. Where it knows what it stands
/// on it paints that, too, so that nothing is painted twice.
class CardGround : public QWidget {
  public:
    explicit CardGround(QWidget* parent = nullptr) : QWidget(parent) {}

  protected:
    virtual QColor borderColor() const = 0;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantor
