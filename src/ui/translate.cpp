#include "ui/translate.h"

#include <QCoreApplication>

namespace vantor {

QString translate(const char* context, const char* text, const char* comment, int n) {
    QString translated = QCoreApplication::translate(context, text, comment, n);
    if (n < 0) return translated;
    for (const QLatin1StringView ending : {QLatin1StringView("(s)"), QLatin1StringView("(es)")})
        translated.replace(ending, n == 1 ? QLatin1StringView() : ending.sliced(1).chopped(1));
    return translated;
}

QString listed(const QStringList& texts) {
    //: stands between the parts of a list, with the blank that follows it
    return texts.join(translate("Lists", ", "));
}

}  // namespace vantor
