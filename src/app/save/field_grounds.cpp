#include "app/save/field_grounds.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>

#include "ui/pixels.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr double groundCorner = 8;
constexpr int groundPadding = 5;  // the lists' entries keep away from the corners
constexpr double groundOpacity = 0.06;
constexpr double groundBorderOpacity = 0.16;
constexpr double groundFocusWidth = 2;
constexpr int fieldPadding = 6;
constexpr int selectionDarkening = 115;  // percent

}  // namespace

FieldGrounds::FieldGrounds(QWidget* dialog) : QWidget(dialog) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    dialog->installEventFilter(this);
    lower();
}

void FieldGrounds::add(QLineEdit* field) {
    field->setFrame(false);
    field->setTextMargins(fieldPadding, fieldPadding, fieldPadding, fieldPadding);
    adopt(field);
}

void FieldGrounds::add(QAbstractScrollArea* list) {
    list->setFrameShape(QFrame::NoFrame);
    list->setContentsMargins(groundPadding, groundPadding, groundPadding, groundPadding);
    list->viewport()->setAutoFillBackground(false);
    adopt(list);
}

void FieldGrounds::adopt(QWidget* part) {
    // The ground is painted here; the part itself must not paint over it.
    QPalette transparent = part->palette();
    transparent.setColor(QPalette::Base, Qt::transparent);
    // A little darker than the accent, on which white could not be read well enough.
    transparent.setColor(QPalette::Highlight, VantorTheme::blue().darker(selectionDarkening));
    transparent.setColor(QPalette::HighlightedText, Qt::white);
    part->setPalette(transparent);
    part->installEventFilter(this);
    parts_.push_back(part);
}

bool FieldGrounds::eventFilter(QObject* watched, QEvent* event) {
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

void FieldGrounds::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ColorScheme scheme = colorScheme(*this);
    const QColor label = VantorTheme::primaryLabel(scheme);
    const QColor fill = scheme == ColorScheme::light ? VantorTheme::card(scheme)
                                                     : VantorTheme::faded(label, groundOpacity);
    for (const QWidget* const part : parts_) {
        if (!part->isVisible()) continue;
        const QRect place(part->mapTo(parentWidget(), QPoint()), part->size());
        const QRectF area = Pixels::snapped(painter, place);
        QPainterPath ground;
        ground.addRoundedRect(area, groundCorner, groundCorner);
        vantorBackground(painter, fill, ground);
        const bool hasKeyboard = part->hasFocus();
        const double width = hasKeyboard ? groundFocusWidth : Pixels::snappedLineWidth(painter, 1);
        const double inset = width / 2;
        painter.setPen(
            QPen(hasKeyboard ? VantorTheme::blue() : VantorTheme::faded(label, groundBorderOpacity),
                 width));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), groundCorner - inset,
                                groundCorner - inset);
    }
}

}  // namespace vantor
