#include "app/window/about_panel.h"

#include <QMessageBox>

#include "app/window/window_activation.h"
#include "ui/components/make_child.h"
#include "ui/core_words.h"
#include "ui/product_icon.h"
#include "ui/translate.h"

namespace vantor {

QMessageBox* showVantorAboutPanel(const AppMetadata& metadata, const ConfinementState& confinement,
                                  QWidget* owner) {
    constexpr int iconSide = 64;
    auto* panel = makeChild<QMessageBox>(owner);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(
        //: the title of a window
        translate("AboutPanel", "About Vantor"));
    panel->setWindowModality(Qt::NonModal);
    panel->setIconPixmap(productIcon().pixmap(iconSide, iconSide));
    panel->setText(QStringLiteral("<b>Vantor</b>"));
    panel->setInformativeText(

        //: %1 is the version, %2 the build, %3 is "yes", "no" or what is missing
        translate("AboutPanel",
                  "Version %1 (%2)\n\nBuilt by the Vantor founders. Everything it shows, it "
                  "reads on this machine, and it stays here.\n\nConfined by the kernel: %3")
            .arg(metadata.version(), metadata.build(), wordedForPeople(confinement.text())));
    panel->setStandardButtons(QMessageBox::Close);
    bringToFront(*panel, {});
    return panel;
}

}  // namespace vantor
