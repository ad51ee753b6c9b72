#include "ui/components/segmented_picker.h"

#include <QButtonGroup>
#include <QFocusEvent>
#include <QHBoxLayout>

#include <cmath>

#include "ui/components/make_child.h"
#include "ui/components/text_line.h"
#include "ui/drawing/view_painter.h"
#include "ui/pixels.h"
#include "ui/theme.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr double segmentedPickerHorizontalPadding = 12;
constexpr double segmentedPickerVerticalPadding = 5;
constexpr int trackInset = 3;
constexpr int labelGap = 8;
constexpr double segmentedPickerTrackOpacity = 0.07;
constexpr double chosenOpacity = 0.16;
constexpr double segmentedPickerHoverOpacity = 0.06;

constexpr TextStyle segmentedPickerTitleStyle{Typography::caption, QFont::DemiBold};

}  // namespace

SegmentButton::SegmentButton(const QString& title, QWidget* parent) : QAbstractButton(parent) {
    setText(title);
    setCheckable(true);
    setAutoExclusive(true);  // what makes it a radio button for assistive technology
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize SegmentButton::sizeHint() const {
    const QFontMetricsF metrics(Typography::font(segmentedPickerTitleStyle), this);
    return {static_cast<int>(std::ceil(wholeLineWidth(*this, segmentedPickerTitleStyle, text()) +
                                       2 * segmentedPickerHorizontalPadding)),
            static_cast<int>(std::ceil(metrics.height() + 2 * segmentedPickerVerticalPadding))};
}

void SegmentButton::focusInEvent(QFocusEvent* event) {
    ring_.focusIn(*event);
    QAbstractButton::focusInEvent(event);
}

void SegmentButton::keyPressEvent(QKeyEvent* event) {
    ring_.keyPressed();
    QAbstractButton::keyPressEvent(event);
}

void SegmentButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void SegmentButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void SegmentButton::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this);
    const ColorScheme scheme = painter.scheme();
    const QColor label = VantorTheme::primaryLabel(scheme);
    const QRectF area = Pixels::snapped(painter, rect());
    const double radius = area.height() / 2;
    if (isChecked() || underMouse()) {
        QPainterPath shape;
        shape.addRoundedRect(area, radius, radius);
        vantorBackground(
            painter,
            VantorTheme::faded(label, isChecked() ? chosenOpacity : segmentedPickerHoverOpacity),
            shape);
        if (isChecked()) vantorOutline(painter, shape, scheme);
    }
    if (hasFocus() && ring_.isShown()) FocusRing::paint(painter, area, radius, palette());
    vantorForeground(painter, isChecked() ? label : VantorTheme::secondaryLabel(scheme));
    painter.line(segmentedPickerTitleStyle, area, Qt::AlignHCenter | Qt::AlignVCenter, text());
}

SegmentedPicker::SegmentedPicker(const QString& label, const QStringList& choices,
                                 std::function<void(int)> onChange, QWidget* parent)
    : QWidget(parent) {
    setAccessibleName(label);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = makeLayout<QHBoxLayout>(this);
    row->setContentsMargins(0, trackInset, 0, trackInset);
    row->setSpacing(0);
    label_ = makeChild<TextLineView>(this, label, Typography::caption, QFont::Normal,
                                     TextLineView::Tone::secondary);
    row->addWidget(label_);
    row->addSpacing(labelGap + trackInset);
    auto* group = makeChild<QButtonGroup>(this);
    for (int i = 0; i < static_cast<int>(choices.size()); ++i) {
        buttons_.push_back(makeChild<SegmentButton>(this, choices[i]));
        group->addButton(buttons_.back(), i);
        row->addWidget(buttons_.back());
    }
    row->addSpacing(trackInset);  // and no margin: that would not change sides
    if (!buttons_.empty()) buttons_.front()->setChecked(true);
    connect(group, &QButtonGroup::idToggled, this,
            [this, onChange = std::move(onChange)](int id, bool isChosen) {
                adoptTabStop();
                if (isChosen && onChange) onChange(id);
            });
    adoptTabStop();
}

/// The Tab key goes to the current choice; the arrow keys go to the others.
void SegmentedPicker::adoptTabStop() {
    for (SegmentButton* const button : buttons_)
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

void SegmentedPicker::hideLabel() {
    label_->hide();
    auto* row = static_cast<QHBoxLayout*>(layout());
    row->itemAt(1)->spacerItem()->changeSize(trackInset, 0);
    row->invalidate();
}

int SegmentedPicker::choice() const {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        if (buttons_[i]->isChecked()) return static_cast<int>(i);
    }
    return -1;
}

void SegmentedPicker::choose(int index) {
    button(index).setChecked(true);
}

void SegmentedPicker::paintEvent(QPaintEvent*) {
    if (buttons_.empty()) return;
    ViewPainter painter(*this);
    QRect track;
    for (const SegmentButton* button : buttons_)
        track = track.united(button->geometry());
    const QRectF area =
        Pixels::snapped(painter, track.adjusted(-trackInset, -trackInset, trackInset, trackInset));
    QPainterPath shape;
    shape.addRoundedRect(area, area.height() / 2, area.height() / 2);
    vantorBackground(painter,
                     VantorTheme::faded(VantorTheme::primaryLabel(colorScheme(*this)),
                                        segmentedPickerTrackOpacity),
                     shape);
    vantorOutline(painter, shape, colorScheme(*this));
}

}  // namespace vantor
