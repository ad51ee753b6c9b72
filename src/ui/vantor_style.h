#pragma once

#include <QProxyStyle>

namespace vantor {

/// What the toolkit's own dialogs, menus and boxes look like: plain buttons without pictures, and
/// the program's symbols where the toolkit has old drawings. Symbols take their colour from the
/// program's palette whenever they are drawn.
class VantorStyle : public QProxyStyle {
  public:
    VantorStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

}  // namespace vantor
