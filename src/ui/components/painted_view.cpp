#include "ui/components/painted_view.h"

#include <QAccessibleWidget>

namespace vantor {

namespace {

class AccessiblePaintedView : public QAccessibleWidget {
  public:
    explicit AccessiblePaintedView(PaintedView& view)
        : QAccessibleWidget(&view, view.accessibleRole()), view_(view) {}

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name:
                return view_.accessibleLabel();
            case QAccessible::Value:
                return view_.accessibleValueText();
            case QAccessible::Description:
                return view_.toolTip();
            default:
                return QAccessibleWidget::text(kind);
        }
    }

  private:
    PaintedView& view_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* view = dynamic_cast<PaintedView*>(object);
    if (!view) return nullptr;
    // The toolkit's registry takes ownership of what a factory returns.
    return std::make_unique<AccessiblePaintedView>(*view).release();
}

}  // namespace

void PaintedView::announceValue() {
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent event(this, accessibleValueText());
    QAccessible::updateAccessibility(&event);
}

void installPaintedViewAccessibility() {
    QAccessible::installFactory(makeInterface);
}

}  // namespace vantor
