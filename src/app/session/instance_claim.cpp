#include "app/session/instance_claim.h"

#include <algorithm>

namespace vantor {

QString checkedToken(const QString& text) {
    constexpr qsizetype longest = 512;
    const bool isPrintable =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
    return text.size() <= longest && isPrintable ? text : QString();
}

QString tokenIn(const QVariantMap& platformData) {
    for (const QLatin1StringView key : {waylandTokenKey, x11TokenKey}) {
        const QVariant value = platformData.value(key);
        if (value.typeId() != QMetaType::QString) continue;
        if (QString token = checkedToken(value.toString()); !token.isEmpty()) return token;
    }
    return {};
}

}  // namespace vantor
