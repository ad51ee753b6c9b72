#include "ui/components/menu_picker.h"

#include <QAction>
#include <QActionGroup>
#include <QKeyEvent>
#include <QMenu>

#include <utility>

#include "ui/components/make_child.h"

namespace vantor {

namespace {

constexpr int menuGap = 4;

}  // namespace

MenuPickerView::MenuPickerView(QString label, const QStringList& choices,
                               const std::function<void(std::size_t)>& onChoose, QWidget* parent)
    : CapsuleButtonView({QString(), QStringLiteral("chevron.up.chevron.down"), [this] { open(); }},
                        parent),
      label_(std::move(label)),
      menu_(makeChild<QMenu>(this)) {
    auto* group = makeChild<QActionGroup>(this);
    for (std::size_t i = 0; i < static_cast<std::size_t>(choices.size()); ++i) {
        QAction* action = menu_->addAction(choices[static_cast<qsizetype>(i)]);
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [onChoose, i] {
            if (onChoose) onChoose(i);
        });
        reserveWidthFor(action->text());
    }
}

void MenuPickerView::show(const QString& text, std::optional<std::size_t> choice) {
    CapsuleButtonView::show(text, systemImage());
    setAccessibleName(label_ + u' ' + text);
    const auto actions = menu_->actions();
    for (qsizetype i = 0; i < actions.size(); ++i)
        actions[i]->setChecked(choice == static_cast<std::size_t>(i));
}

void MenuPickerView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        open();
        return;
    }
    CapsuleButtonView::keyPressEvent(event);
}

void MenuPickerView::open() {
    const int left = isRightToLeft() ? width() - menu_->sizeHint().width() : 0;
    menu_->popup(mapToGlobal(QPoint(left, height() + menuGap)));
    for (QAction* action : menu_->actions()) {
        if (action->isChecked()) menu_->setActiveAction(action);
    }
}

}  // namespace vantor
