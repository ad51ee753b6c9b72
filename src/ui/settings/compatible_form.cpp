#include "ui/settings/compatible_form.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "ui/components/card_chrome.h"
#include "ui/components/make_child.h"
#include "ui/pixels.h"
#include "ui/theme.h"

namespace vantor {

namespace {

constexpr int rowSpacing = 16;  // between a label and its content
constexpr int titleGap = 7;
constexpr int titleInset = 2;
constexpr double groupCorner = 14;
constexpr int groupInset = 14;
constexpr int rowPadding = 6;
constexpr int leastRowHeight = 34;
constexpr int plainGap = 8;
constexpr double labelWidth = 190;  // of the plain form: as much as the longest label
constexpr double borderOpacity = 0.08;

}  // namespace

FormStyle formStyle(const ProcessInfo& versions) {
    return versions.isOperatingSystemAtLeast(13, 0, 0) ? FormStyle::grouped : FormStyle::plain;
}

FormRowsView::FormRowsView(FormStyle style, QWidget* parent)
    : QWidget(parent), style_(style), column_(makeLayout<QVBoxLayout>(this)) {
    const bool isGrouped = style == FormStyle::grouped;
    column_->setContentsMargins(isGrouped ? groupInset : 0, 0, isGrouped ? groupInset : 0, 0);
    column_->setSpacing(isGrouped ? 0 : plainGap);
}

void FormRowsView::add(QWidget* row) {
    if (style_ == FormStyle::grouped) {
        // What stands beside each other keeps its own height; the row gives it room.
        auto* cell = makeChild<QWidget>(this);
        auto* inside = makeLayout<QVBoxLayout>(cell);
        inside->setContentsMargins(0, rowPadding, 0, rowPadding);
        inside->addWidget(row, 0, Qt::AlignVCenter);
        cell->setMinimumHeight(leastRowHeight);
        row = cell;
    }
    rows_.push_back(row);
    column_->addWidget(row);
}

void FormRowsView::paintEvent(QPaintEvent*) {
    if (style_ == FormStyle::plain) return;
    QPainter painter(this);
    const ColorScheme scheme = colorScheme(*this);
    const QColor line = VantorTheme::faded(VantorTheme::primaryLabel(scheme), borderOpacity);
    CardChrome::paint(painter, rect(), scheme, line, groupCorner);
    const double thin = Pixels::snappedLineWidth(painter, 1);
    for (std::size_t i = 1; i < rows_.size(); ++i) {
        const QRectF between(groupInset, rows_[i]->y(), width() - 2 * groupInset, thin);
        painter.fillRect(Pixels::snapped(painter, between), line);
    }
}

CompatibleFormSection::CompatibleFormSection(FormStyle style, const QString& title, QWidget* parent)
    : QWidget(parent),
      style_(style),
      title_(makeChild<HeadingView>(this, title, Typography::headline, QFont::DemiBold)),
      rows_(makeChild<FormRowsView>(this, style)) {
    auto* column = makeLayout<QVBoxLayout>(this);
    const int inset = style == FormStyle::grouped ? titleInset : 0;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(titleGap);
    auto* titleRow = makeInnerLayout<QHBoxLayout>();
    titleRow->setContentsMargins(inset, 0, inset, 0);
    titleRow->addWidget(title_);
    column->addLayout(titleRow);
    column->addWidget(rows_);
}

CompatibleLabeledContent::CompatibleLabeledContent(FormStyle style, const QString& label,
                                                   QWidget* content, QWidget* parent)
    : QWidget(parent),
      label_(makeChild<TextLineView>(this, label, Typography::body, QFont::Normal,
                                     TextLineView::Tone::primary)) {
    auto* row = makeLayout<QHBoxLayout>(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    // A label is never cut: what it takes is the least that the form can be narrowed to.
    label_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    if (style == FormStyle::plain) {
        label_->setFixedWidth(std::max(Typography::scaled(labelWidth), label_->sizeHint().width()));
    }
    row->addWidget(label_);
    row->addSpacing(rowSpacing);
    if (style == FormStyle::grouped) row->addStretch();
    row->addWidget(content);
    if (style == FormStyle::plain) row->addStretch();
}

LabeledTextView::LabeledTextView(QString label, const QString& value, QWidget* parent)
    : TextLineView(value, Typography::body, QFont::Normal, Tone::secondary, parent),
      label_(std::move(label)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

CompatibleLabeledValue::CompatibleLabeledValue(FormStyle style, const QString& label,
                                               const QString& value, QWidget* parent)
    : CompatibleLabeledValue(style, label,
                             std::make_unique<LabeledTextView>(label, value).release(), parent) {}

CompatibleLabeledValue::CompatibleLabeledValue(FormStyle style, const QString& label,
                                               LabeledTextView* value, QWidget* parent)
    : CompatibleLabeledContent(style, label, value, parent), value_(value) {}

}  // namespace vantor
