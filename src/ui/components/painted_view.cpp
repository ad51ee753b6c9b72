#include "ui/components/painted_view.h"

#include "ui/components/tool_tip_text.h"

namespace vantor {

namespace {

QAccessibleInterface* rowOf(PaintedView& view, int row) {
    QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(&view);
    return whole ? whole->child(row) : nullptr;
}

void announce(PaintedView& view, int row, QAccessible::Event kind) {
    if (!QAccessible::isActive()) return;
    QAccessibleInterface* const interface = rowOf(view, row);
    if (!interface) return;
    QAccessibleEvent event(interface, kind);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

QString PaintedView::accessibleHelp() const {
    return readToolTip(toolTip());
}

std::optional<AccessibleRange> PaintedView::accessibleRange() const {
    const auto fraction = accessibleFraction();
    return fraction ? std::optional(AccessibleRange{.value = *fraction}) : std::nullopt;
}

void PaintedView::announceValue() {
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent event(this, accessibleValueText());
    QAccessible::updateAccessibility(&event);
    // Assistive technology without values of texts reads them from the description.
    QAccessibleEvent description(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
}

void PaintedView::announceName() {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void PaintedView::announceRow(int row) {
    announce(*this, row, QAccessible::NameChanged);
}

void PaintedView::announceRowCount() {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

void PaintedView::announceFocus(int row) {
    if (hasFocus()) announce(*this, row, QAccessible::Focus);
}

}  // namespace vantor
