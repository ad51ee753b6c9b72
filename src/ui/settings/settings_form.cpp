#include "ui/settings/settings_form.h"

#include <cmath>

#include "ui/cards/card_texts.h"
#include "ui/formatters.h"
#include "ui/translate.h"

namespace vantor {

SettingsForm SettingsForm::of(const AppSettings& settings) {
    return {settings.appearance(), settings.refreshInterval(), settings.historyLength(),
            settings.includePointToPointInterfaces(), settings.showMenuBar()};
}

QString SettingsForm::historyLabel() const {
    return translate("SettingsForm", "Chart history: %Ln sample(s)",
                     "how many readings the charts keep", countForPlural(historyLength));
}

QString SettingsForm::intervalLabel(double seconds) {
    if (!std::isfinite(seconds)) return CardTexts::unknownYet();
    if (seconds == 0.5)
        //: half a second, as a number
        return translate("SettingsForm", "%1 second").arg(Formatters::number(seconds));
    if (seconds == std::floor(seconds) && std::abs(seconds) < 1e6) {
        const auto whole = static_cast<int>(seconds);
        return translate("SettingsForm", "%Ln second(s)", "how often the figures are read", whole);
    }
    //: a number of seconds that is not whole
    return translate("SettingsForm", "%1 seconds").arg(Formatters::number(seconds));
}

QStringList SettingsForm::intervalLabels() {
    QStringList labels;
    for (const double seconds : AppSettings::refreshIntervals)
        labels << intervalLabel(seconds);
    return labels;
}

QString SettingsForm::appearanceLabel(Appearance appearance) {
    switch (appearance) {
        case Appearance::system:
            return
                //: the theme: as the desktop has it
                translate("SettingsForm", "System");
        case Appearance::light:
            return
                //: the theme
                translate("SettingsForm", "Light");
        case Appearance::dark:
            break;
    }
    return
        //: the theme
        translate("SettingsForm", "Dark");
}

QStringList SettingsForm::appearanceLabels() {
    QStringList labels;
    for (const Appearance appearance : allAppearances)
        labels << appearanceLabel(appearance);
    return labels;
}

}  // namespace vantor
