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

constexpr int compatibleFormRowSpacing = 16;  // between a label and its content
constexpr int compatibleFormTitleGap = 7;
constexpr double groupCorner = 14;
constexpr int groupInset = 14;
constexpr int largestOutset = 3;
constexpr int rowPadding = 6;
constexpr int minRowHeight = 34;
constexpr int plainGap = 8;
constexpr double labelWidth = 190;  // of the plain form: as much as the longest label has
constexpr double compatibleFormBorderOpacity = 0.08;

}  // namespace

FormStyle formStyle(const ProcessInfo& versions) {
    return versions.isOperatingSystemAtLeast(13, 0, 0) ? FormStyle::grouped : FormStyle::plain;
}

FormRowsView::FormRowsView(FormStyle style, QWidget* parent)
    : QWidget(parent), style_(style), column_(makeLayout<QVBoxLayout>(this)) {
    const bool isGrouped = style == FormStyle::grouped;
    const int inset = isGrouped ? groupInset - largestOutset : 0;
    column_->setContentsMargins(inset, 0, inset, 0);
    column_->setSpacing(isGrouped ? 0 : plainGap);
}

void FormRowsView::add(QWidget* row, int outset) {
    const bool isGrouped = style_ == FormStyle::grouped;
    // Neighbours keep their own heights; the row is as high as the higher one.
    auto* cell = makeChild<QWidget>(this);
    auto* inside = makeLayout<QVBoxLayout>(cell);
    const int across = largestOutset - outset;
    const int padding = isGrouped ? rowPadding : 0;
    inside->setContentsMargins(across, padding, across, padding);
    inside->addWidget(row, 0, Qt::AlignVCenter);
    if (isGrouped) cell->setMinimumHeight(minRowHeight);
    rows_.push_back(cell);
    column_->addWidget(cell);
}

void FormRowsView::paintEvent(QPaintEvent*) {
    if (style_ == FormStyle::plain) return;
    QPainter painter(this);
    const ColorScheme scheme = colorScheme(*this);
    const QColor line = VantorTheme::line(scheme, compatibleFormBorderOpacity);
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
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(compatibleFormTitleGap);
    auto* titleRow = makeInnerLayout<QHBoxLayout>();
    titleRow->setContentsMargins(largestOutset, 0, largestOutset, 0);
    titleRow->addWidget(title_);
    column->addLayout(titleRow);
    column->addWidget(rows_);
}

FormLabelView::FormLabelView(FormStyle style, const QString& text, QWidget* parent)
    : TextLineView(text, Typography::body, QFont::Normal, Tone::primary, parent), style_(style) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FormLabelView::sizeHint() const {
    const int least = style_ == FormStyle::plain ? Typography::scaled(labelWidth) : 0;
    return TextLineView::sizeHint().expandedTo({least, 0});
}

CompatibleLabeledContent::CompatibleLabeledContent(FormStyle style, const QString& label,
                                                   QWidget* content, QWidget* parent)
    : QWidget(parent), label_(makeChild<FormLabelView>(this, style, label)) {
    auto* row = makeLayout<QHBoxLayout>(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(label_);
    row->addSpacing(compatibleFormRowSpacing);
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
