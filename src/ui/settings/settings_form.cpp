#include "ui/settings/settings_form.h"

#include <cmath>

#include "ui/cards/card_texts.h"
#include "ui/formatters.h"

namespace vantor {

SettingsForm SettingsForm::of(const AppSettings& settings) {
    return {settings.appearance(), settings.refreshInterval(), settings.historyLength(),
            settings.includePointToPointInterfaces(), settings.showMenuBar()};
}

QString SettingsForm::historyLabel() const {
    return QStringLiteral("Chart history: %1 samples").arg(historyLength);
}

QString SettingsForm::intervalLabel(double seconds) {
    if (!std::isfinite(seconds)) return CardTexts::unknownYet();
    const bool isOne = seconds == 0.5 || seconds == 1;
    return Formatters::interval(seconds,
                                isOne ? QStringLiteral("second") : QStringLiteral("seconds"));
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
            return QStringLiteral("System");
        case Appearance::light:
            return QStringLiteral("Light");
        case Appearance::dark:
            break;
    }
    return QStringLiteral("Dark");
}

QStringList SettingsForm::appearanceLabels() {
    QStringList labels;
    for (const Appearance appearance : allAppearances)
        labels << appearanceLabel(appearance);
    return labels;
}

}  // namespace vantor
