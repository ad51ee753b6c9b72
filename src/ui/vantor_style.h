#pragma once

#include <QProxyStyle>

namespace vantor {

/// What the toolkit's own dialogs, menus and boxes look like: plain buttons without pictures, and
/// the program's symbols where the toolkit has old drawings; a menu bar lies flat on the window's
/// background. All colours are looked up when something is drawn: a style sheet would keep those of
/// the palette at the time it was applied.
class VantorStyle : public QProxyStyle {
  public:
    VantorStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};

}  // namespace vantor
