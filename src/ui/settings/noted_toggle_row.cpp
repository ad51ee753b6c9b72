#include "ui/settings/noted_toggle_row.h"

#include <QAccessible>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "ui/components/make_child.h"

namespace vantor {

NotedToggleRow::NotedToggleRow(const QString& label, ToggleRowView::Switch place,
                               std::function<void(bool)> onChange, QWidget* parent)
    : QWidget(parent),
      toggle_(makeChild<ToggleRowView>(this, label, place, std::move(onChange))),
      problem_(makeChild<ParagraphView>(this, QString(), Typography::caption, QFont::Normal,
                                        TextLineView::Tone::secondary)) {
    auto* column = makeLayout<QVBoxLayout>(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(toggle_);
    problem_->setContentsMargins(outset, 0, outset, outset);
    problem_->setVisible(false);
    column->addWidget(problem_);
}

void NotedToggleRow::tell(const QString& problem) {
    if (problem == problem_->text()) return;
    problem_->setText(problem);
    problem_->setVisible(!problem.isEmpty());
    makeRoomForProblem();
    if (problem.isEmpty() || !QAccessible::isActive()) return;
    QAccessibleEvent news(problem_, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

/// A fixed height, as the form around it gives rows no less than that. The label's own answer is
/// never below its least height, so that one is taken away first.
void NotedToggleRow::makeRoomForProblem() {
    problem_->setMinimumHeight(0);
    problem_->setFixedHeight(std::max(0, problem_->heightForWidth(width())));
}

void NotedToggleRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    makeRoomForProblem();
}

}  // namespace vantor
