#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

#include "settings/app_settings.h"

namespace vantor {

/// What the settings' form shows: the preferences as they are, also values that are not among the
/// choices.
struct SettingsForm {
    Appearance appearance = Appearance::dark;
    double refreshInterval = AppSettings::defaultRefreshInterval;  ///< seconds
    std::int64_t historyLength = 0;
    bool includePointToPointInterfaces = false;
    bool showMenuBar = false;

    static SettingsForm of(const AppSettings& settings);

    QString historyLabel() const;

    /// "0.5 second", "1 second", "2 seconds"; any other number as it is.
    static QString intervalLabel(double seconds);
    static QStringList intervalLabels();  ///< of the choices, in their order
    static QString appearanceLabel(Appearance appearance);
    static QStringList appearanceLabels();  ///< of all, in their order
};

}  // namespace vantor
