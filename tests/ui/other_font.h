#pragma once

#include <QApplication>
#include <QFont>

namespace vantor {

/// Gives the program another font while it lives.
class OtherFont {
  public:
    explicit OtherFont(double factor) {
        QFont font = before_;
        font.setPointSizeF(before_.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    explicit OtherFont(const QFont& font) { QApplication::setFont(font); }
    OtherFont(const OtherFont&) = delete;
    OtherFont& operator=(const OtherFont&) = delete;
    ~OtherFont() { QApplication::setFont(before_); }

  private:
    const QFont before_ = QApplication::font();
};

}  // namespace vantor
