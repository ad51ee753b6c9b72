#include "app/vantor_help_window.h"

#include "ui/help/help_view.h"

namespace vantor {

void VantorHelpWindow::show() {
    constexpr QSize usual{700, 620};
    if (!window_) {
        auto view = std::make_unique<HelpView>(machine_->processInfo(), machine_->words());
        const QSize smallest = view->minimumSizeHint();
        window_ = std::make_unique<ContentWindow>(QStringLiteral("Vantor Help"), std::move(view),
                                                  usual, smallest);
        prepare_(*window_);
    }
    window_->open();
}

}  // namespace vantor
