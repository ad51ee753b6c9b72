#include "ui/components/paragraph.h"

#include <QEvent>

#include "ui/theme.h"

namespace vantor {

ParagraphView::ParagraphView(const QString& text, double size, QFont::Weight weight,
                             TextLineView::Tone tone, QWidget* parent)
    : QLabel(parent), size_(size), weight_(weight), tone_(tone) {
    setTextFormat(Qt::PlainText);
    setText(text);
    setWordWrap(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    adoptFont();
    adoptColor();
    // A widget with a font of its own gets no event when the program's changes; its parent does.
    if (parent) parent->installEventFilter(this);
}

void ParagraphView::adoptFont() {
    setFont(Typography::font(size_, weight_));
}

void ParagraphView::adoptColor() {
    const ColorScheme scheme = colorScheme(*this);
    const QColor color = tone_ == TextLineView::Tone::primary ? VantorTheme::primaryLabel(scheme)
                                                              : VantorTheme::secondaryLabel(scheme);
    if (palette().color(QPalette::WindowText) == color) return;
    QPalette own;  // only the text's colour: the rest follows the parent
    own.setColor(QPalette::WindowText, color);
    setPalette(own);
}

void ParagraphView::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) adoptColor();
}

bool ParagraphView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FontChange) adoptFont();
    return QLabel::eventFilter(watched, event);
}

}  // namespace vantor
