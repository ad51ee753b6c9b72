#include "ui/components/accessible_views.h"

#include <QAccessibleWidget>
#include <QStringList>

#include <memory>
#include <vector>

#include "ui/components/dashboard_card.h"
#include "ui/components/painted_view.h"
#include "ui/translate.h"

namespace vantor {

namespace {

/// A row that has no widget of its own.
class AccessibleRow : public QAccessibleInterface {
  public:
    AccessibleRow(PaintedView& view, int row) : view_(view), row_(row) {}

    bool isValid() const override { return row_ < view_.accessibleRowCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&view_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? view_.accessibleRowLabel(row_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const QRect area = view_.accessibleRowArea(row_);
        return {view_.mapToGlobal(area.topLeft()), area.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        const bool isChosen = view_.isAccessibleRowChosen(row_);
        state.readOnly = true;
        state.selectable = view_.focusPolicy() != Qt::NoFocus;
        state.focusable = state.selectable;
        state.selected = isChosen;
        state.focused = isChosen && view_.hasFocus();
        state.invisible = !view_.isVisible();
        return state;
    }

  private:
    PaintedView& view_;
    int row_;
};

class AccessiblePaintedView : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessiblePaintedView(PaintedView& view)
        : QAccessibleWidget(&view, view.accessibleRole()), view_(view) {}
    AccessiblePaintedView(const AccessiblePaintedView&) = delete;
    AccessiblePaintedView& operator=(const AccessiblePaintedView&) = delete;
    ~AccessiblePaintedView() override {
        for (const QAccessible::Id row : rows_)
            QAccessible::deleteAccessibleInterface(row);
    }

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name:
                return view_.accessibleLabel();
            case QAccessible::Value:
                return view_.accessibleValueText();
            case QAccessible::Description:
                return description();
            default:
                return QAccessibleWidget::text(kind);
        }
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && view_.accessibleRange()) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return range().value; }
    void setCurrentValue(const QVariant& value) override {
        view_.setAccessibleNumber(value.toDouble());
    }
    QVariant maximumValue() const override { return range().highest; }
    QVariant minimumValue() const override { return range().lowest; }
    QVariant minimumStepSize() const override { return range().step; }

    int childCount() const override { return view_.accessibleRowCount(); }
    QAccessibleInterface* child(int row) const override {
        if (row < 0 || row >= childCount()) return nullptr;
        while (rows_.size() <= static_cast<std::size_t>(row)) {
            // The toolkit's registry takes ownership.
            auto made = std::make_unique<AccessibleRow>(view_, static_cast<int>(rows_.size()));
            rows_.push_back(QAccessible::registerAccessibleInterface(made.release()));
        }
        return QAccessible::accessibleInterface(rows_[static_cast<std::size_t>(row)]);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            if (QAccessible::accessibleInterface(rows_[i]) == child) return static_cast<int>(i);
        }
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = view_.mapFromGlobal(QPoint(x, y));
        for (int row = 0; row < childCount(); ++row) {
            if (view_.accessibleRowArea(row).contains(place)) return child(row);
        }
        return nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        for (int row = 0; view_.hasFocus() && row < childCount(); ++row) {
            if (view_.isAccessibleRowChosen(row)) return child(row);
        }
        return nullptr;
    }

  private:
    AccessibleRange range() const { return view_.accessibleRange().value_or(AccessibleRange{}); }

    /// The value comes first: the assistive technology of some desktops gets names and descriptions
    /// only.
    QString description() const {
        const QString value = view_.accessibleValueText();
        const QString help = view_.accessibleHelp();
        if (value.isEmpty() || help.isEmpty() || value == help) {
            return value.isEmpty() ? help : value;
        }
        return listed({value, help});
    }

    PaintedView& view_;
    mutable std::vector<QAccessible::Id> rows_;  // made on first use
};

/// A card: its title, and all that it shows in one sentence.
class AccessibleCard : public QAccessibleWidget {
  public:
    explicit AccessibleCard(DashboardCardView& card)
        : QAccessibleWidget(&card, QAccessible::Grouping), card_(card) {}

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name:
                return card_.header().card().title;
            case QAccessible::Description:
                return card_.summary();
            default:
                return QAccessibleWidget::text(kind);
        }
    }

  private:
    DashboardCardView& card_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    // The toolkit's registry takes ownership of what a factory returns.
    if (auto* view = dynamic_cast<PaintedView*>(object)) {
        return std::make_unique<AccessiblePaintedView>(*view).release();
    }
    if (auto* card = dynamic_cast<DashboardCardView*>(object)) {
        return std::make_unique<AccessibleCard>(*card).release();
    }
    return nullptr;
}

}  // namespace

void installViewAccessibility() {
    QAccessible::installFactory(makeInterface);
}

}  // namespace vantor
