#include "app/window/vantor_help_window.h"

#include "ui/help/help_view.h"
#include "ui/translate.h"

namespace vantor {

void VantorHelpWindow::show() {
    if (!window_) {
        auto view = std::make_unique<HelpView>(machine_->processInfo(), machine_->words());
        window_ = std::make_unique<ContentWindow>(
            //: the title of a window
            translate("VantorApp", "Vantor Help"), std::move(view));
        prepare_(*window_);
    }
    window_->open();
}

}  // namespace vantor
