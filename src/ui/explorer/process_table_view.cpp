#include "ui/explorer/process_table_view.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QStringList>
#include <QToolTip>

#include <algorithm>
#include <cmath>

#include "ui/components/reveal.h"
#include "ui/shown_text.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

/// In steps of half a point of the bar: less cannot be seen, and need not be painted.
double visibleShare(double share, double barWidth) {
    const double steps = 2 * barWidth;
    return std::round(std::clamp(share, 0.0, 1.0) * steps) / steps;
}

}  // namespace

ProcessTableView::ProcessTableView(QString symbol, QWidget* parent)
    : PaintedView(parent), symbol_(std::move(symbol)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
}

ProcessTableView::Row ProcessTableView::makeRow(const ProcessRow& row) {
    return {row.process.pid,
            shownText(row.process.name),
            shownText(row.process.command),
            row.cpuText(),
            row.memoryText(),
            visibleShare(row.cpuShare(), ProcessColumns::cpuBarWidth),
            visibleShare(row.memoryShare(), ProcessColumns::memoryBarWidth)};
}

void ProcessTableView::show(std::span<const ProcessRow> rows) {
    const std::size_t before = rows_.size();
    std::vector<Row> next;
    next.reserve(rows.size());
    for (const ProcessRow& row : rows)
        next.push_back(makeRow(row));
    next.swap(rows_);
    const auto& old = next;
    for (std::size_t i = 0; i < std::max(before, rows_.size()); ++i) {
        const bool isSame = i < before && i < rows_.size() && rows_[i] == old[i];
        if (isSame) continue;
        // Names and commands stay from tick to tick: mostly, the figures alone are painted.
        const bool isSameProcess = i < before && i < rows_.size() && rows_[i].pid == old[i].pid &&
                                   rows_[i].name == old[i].name &&
                                   rows_[i].command == old[i].command;
        const QRectF changed = isSameProcess ? figuresArea(i) : rowArea(i);
        update(changed.toAlignedRect().adjusted(0, -static_cast<int>(rowSpacing / 2), 0,
                                                static_cast<int>(rowSpacing / 2)));
        announceRow(static_cast<int>(i));
    }
    if (before != rows_.size()) announceRowCount();
    endHelpOfMovedRow(old);
}

/// The row under the pointer is another process then.
void ProcessTableView::endHelpOfMovedRow(const std::vector<Row>& before) {
    if (!helpPID_) return;
    const auto placeIn = [this](const std::vector<Row>& rows) {
        return std::ranges::find(rows, *helpPID_, &Row::pid) - rows.begin();
    };
    if (placeIn(before) == placeIn(rows_)) return;
    helpPID_.reset();
    QToolTip::hideText();
}

/// Needed for each row at each tick: computed once for each font.
double ProcessTableView::rowHeight() const {
    const QFont systemFont = QApplication::font();
    if (rowHeight_ && systemFont == rowHeightFont_) return *rowHeight_;
    rowHeightFont_ = systemFont;
    const double text = QFontMetricsF(Typography::font(nameStyle), this).height();
    const double figures = QFontMetricsF(Typography::font(figureStyle), this).height();
    // With the spacing, a whole number of device pixels at 125 % and 150 %, too.
    constexpr double evenStep = 4;
    rowHeight_ = std::ceil(std::max(text, figures) / evenStep) * evenStep;
    return *rowHeight_;
}

/// The header takes the place of a row before the first one.
QRectF ProcessTableView::rowArea(std::size_t index) const {
    const double step = rowHeight() + rowSpacing;
    return {0, step * static_cast<double>(index + 1) + rowSpacing / 2, static_cast<double>(width()),
            rowHeight()};
}

ProcessColumns ProcessTableView::columns() const {
    return ProcessColumns::make(width(), rowHeight(), Typography::lengthScale());
}

/// All of a row but its name.
QRectF ProcessTableView::figuresArea(std::size_t index) const {
    QRectF area = rowArea(index);
    const double name = columns().name.right();
    if (isRightToLeft()) {
        area.setRight(area.right() - name);
    } else {
        area.setLeft(name);
    }
    return area;
}

std::optional<std::size_t> ProcessTableView::rowAt(QPointF place) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rowArea(i).adjusted(0, -rowSpacing / 2, 0, rowSpacing / 2).contains(place)) return i;
    }
    return std::nullopt;
}

QSize ProcessTableView::sizeHint() const {
    const QRectF last = rowArea(ProcessExplorer::maxRows - 1);
    return {Typography::scaled(560), static_cast<int>(std::ceil(last.bottom() + rowSpacing / 2))};
}

QSize ProcessTableView::minimumSizeHint() const {
    return {Typography::scaled(420), sizeHint().height()};
}

void ProcessTableView::showSort(SortMode mode) {
    if (mode == sort_) return;
    sort_ = mode;
    update(0, 0, width(), static_cast<int>(std::ceil(rowArea(0).top())));
}

QStringList ProcessTableView::rowTexts(std::size_t index) const {
    const Row& row = rows_.at(index);
    return {row.name, QString::number(row.pid), row.cpuText, row.memoryText};
}

std::optional<std::size_t> ProcessTableView::currentRow() const {
    const auto found = std::ranges::find_if(
        rows_, [this](const Row& row) { return currentPID_ && row.pid == *currentPID_; });
    if (found == rows_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows_.begin());
}

void ProcessTableView::setCurrentRow(std::optional<std::size_t> row) {
    if (row && *row < rows_.size()) {
        currentPID_ = rows_[*row].pid;
        announceFocus(static_cast<int>(*row));
    } else {
        currentPID_.reset();
    }
    update();
}

void ProcessTableView::copyCurrentRow() const {
    const auto current = currentRow();
    if (!current) return;
    QApplication::clipboard()->setText(rowText(*current));
}

QString ProcessTableView::rowText(std::size_t index) const {
    QStringList texts = rowTexts(index);
    texts << rows_.at(index).command;
    return texts.join(u'\t');
}

QString ProcessTableView::accessibleValueText() const {
    return translate("ProcessTableView", "%Ln process(es)", "for screen readers: in the list",
                     countForPlural(rows_.size()));
}

QString ProcessTableView::accessibleRowLabel(int row) const {
    const auto index = static_cast<std::size_t>(row);
    if (row < 0 || index >= rows_.size()) return {};
    const Row& shown = rows_[index];
    return
        //: for screen readers: the name of a process, its number, its share of the processor, its
        //: memory
        translate("ProcessTableView", "%1, PID %2, CPU %3, memory %4")
            .arg(isolatedText(shown.name.left(Typography::maxLineLength)))
            .arg(shown.pid)
            .arg(shown.cpuText, shown.memoryText);
}

QRect ProcessTableView::accessibleRowArea(int row) const {
    return rowArea(static_cast<std::size_t>(std::max(row, 0))).toAlignedRect();
}

bool ProcessTableView::isAccessibleRowChosen(int row) const {
    return row >= 0 && currentRow() == static_cast<std::size_t>(row);
}

void ProcessTableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copyCurrentRow();
        return;
    }
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (isPlain && moveBy(static_cast<Qt::Key>(event->key()))) {
        ring_.keyPressed();
        if (const auto row = currentRow()) reveal(*this, rowArea(*row).toAlignedRect());
        update();
        return;
    }
    PaintedView::keyPressEvent(event);
}

/// Whether the key chose a row. At the ends the arrow keys are left to the scroll view.
bool ProcessTableView::moveBy(Qt::Key key) {
    if (rows_.empty()) return false;
    const auto current = currentRow();
    const std::size_t last = rows_.size() - 1;
    switch (key) {
        case Qt::Key_Down:
            if (current == last) return false;
            setCurrentRow(current ? *current + 1 : 0);
            return true;
        case Qt::Key_Up:
            if (!current || *current == 0) return false;
            setCurrentRow(*current - 1);
            return true;
        case Qt::Key_Home:
            setCurrentRow(0);
            return true;
        case Qt::Key_End:
            setCurrentRow(last);
            return true;
        default:
            return false;
    }
}

void ProcessTableView::focusInEvent(QFocusEvent* event) {
    ring_.focusIn(*event);
    if (ring_.isShown() && !currentRow()) setCurrentRow(0);
    PaintedView::focusInEvent(event);
    update();
}

void ProcessTableView::focusOutEvent(QFocusEvent* event) {
    PaintedView::focusOutEvent(event);
    update();
}

}  // namespace vantor
