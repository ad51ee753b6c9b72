#include "app/window/about_panel.h"

#include <QMessageBox>

#include "app/window/window_activation.h"
#include "ui/components/make_child.h"
#include "ui/product_icon.h"

namespace vantor {

QMessageBox* showVantorAboutPanel(const AppMetadata& metadata, const ConfinementState& confinement,
                                  QWidget* owner) {
    constexpr int iconSide = 64;
    auto* panel = makeChild<QMessageBox>(owner);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(QStringLiteral("About Vantor"));
    panel->setWindowModality(Qt::NonModal);
    panel->setIconPixmap(productIcon().pixmap(iconSide, iconSide));
    panel->setText(QStringLiteral("<b>Vantor</b>"));
    panel->setInformativeText(
        QStringLiteral("Version %1 (%2)\n\nBuilt by the Vantor founders. Everything it shows, it "
                       "reads on this machine, and it stays here.\n\nConfined by the kernel: %3")
            .arg(metadata.version(), metadata.build(), QString::fromStdString(confinement.text())));
    panel->setStandardButtons(QMessageBox::Close);
    bringToFront(*panel, {});
    return panel;
}

}  // namespace vantor
