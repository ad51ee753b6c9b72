#pragma once

#include <QLineEdit>

namespace vantor {

/// A text field on a rounded background, with a magnifying glass and a placeholder.
class FilterField : public QLineEdit {
  public:
    static constexpr int widest = 260;

    explicit FilterField(const QString& placeholder, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void adoptFont();
    void adoptDirection();
};

}  // namespace vantor
