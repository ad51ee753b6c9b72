#include "app/files/field_backgrounds.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>

#include "ui/pixels.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr double backgroundCorner = 8;
constexpr int backgroundPadding = 5;  // the lists' entries keep away from the corners
constexpr double backgroundOpacity = 0.06;
constexpr double frameBorderOpacity = 0.16;
constexpr double frameFocusWidth = 2;
constexpr int fieldPadding = 6;
constexpr int selectionDarkening = 115;  // percent

}  // namespace

FieldBackgrounds::FieldBackgrounds(QWidget* dialog) : QWidget(dialog) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    dialog->installEventFilter(this);
    lower();
}

void FieldBackgrounds::add(QLineEdit* field) {
    field->setFrame(false);
    field->setTextMargins(fieldPadding, fieldPadding, fieldPadding, fieldPadding);
    adopt(field);
}

void FieldBackgrounds::add(QAbstractScrollArea* list) {
    list->setFrameShape(QFrame::NoFrame);
    list->setContentsMargins(backgroundPadding, backgroundPadding, backgroundPadding,
                             backgroundPadding);
    list->viewport()->setAutoFillBackground(false);
    adopt(list);
}

void FieldBackgrounds::adopt(QWidget* part) {
    // The background is painted here; the part itself must not paint over it.
    QPalette transparent = part->palette();
    transparent.setColor(QPalette::Base, Qt::transparent);
    // A little darker than the accent, on which white has too little contrast.
    transparent.setColor(QPalette::Highlight, VantorTheme::blue().darker(selectionDarkening));
    transparent.setColor(QPalette::HighlightedText, Qt::white);
    part->setPalette(transparent);
    part->installEventFilter(this);
    parts_.push_back(part);
}

bool FieldBackgrounds::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Resize:
            if (watched == parentWidget()) resize(parentWidget()->size());
            [[fallthrough]];
        case QEvent::FocusIn:
        case QEvent::FocusOut:
        case QEvent::Move:
        case QEvent::Show:
        case QEvent::Hide:
            update();
            break;
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void FieldBackgrounds::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    const QColor label = VantorTheme::primaryLabel(scheme);
    const QColor fill =
        !isDark(scheme) ? VantorTheme::card(scheme) : VantorTheme::faded(label, backgroundOpacity);
    for (const QWidget* const part : parts_) {
        if (!part->isVisible()) continue;
        const QRect place(part->mapTo(parentWidget(), QPoint()), part->size());
        const QRectF area = Pixels::snapped(painter, place);
        QPainterPath background;
        background.addRoundedRect(area, backgroundCorner, backgroundCorner);
        vantorBackground(painter, fill, background);
        const bool hasKeyboard = part->hasFocus();
        const double width = hasKeyboard ? frameFocusWidth : Pixels::snappedLineWidth(painter, 1);
        const double inset = width / 2;
        painter.setPen(
            QPen(hasKeyboard ? VantorTheme::blue() : VantorTheme::line(scheme, frameBorderOpacity),
                 width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset),
                                backgroundCorner - inset, backgroundCorner - inset);
    }
}

}  // namespace vantor
