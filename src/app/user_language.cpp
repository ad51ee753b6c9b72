#include "app/user_language.h"

#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <array>

namespace vantor {

namespace {

/// The toolkit asks for these itself. They are in the program's catalogues, too, as the toolkit's
/// own are not installed everywhere.
[[maybe_unused]] constexpr std::array toolkitWords{//: a button
                                                   QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
                                                   //: a button
                                                   QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
                                                   //: a button
                                                   QT_TRANSLATE_NOOP("QPlatformTheme", "Close")};

bool isEnglish(const QString& language) {
    return language == u"C" || language == u"en" || language.startsWith(u"en-") ||
           language.startsWith(u"en_");
}

}  // namespace

QStringList UserLanguage::candidates(const QString& language) {
    QString name = language;
    name.replace(u'-', u'_');
    QStringList all;
    for (;;) {
        all << name;
        // The one way of writing Portuguese and Chinese that there is serves those close to it,
        // too; traditional Chinese is another script.
        if (name == u"pt") all << QStringLiteral("pt_BR");
        if (name == u"zh_Hans" || name == u"zh_SG") all << QStringLiteral("zh_CN");
        const qsizetype end = name.lastIndexOf(u'_');
        if (end < 0) return all;
        name.truncate(end);
    }
}

UserLanguage::UserLanguage(const QStringList& languages, const QString& folder) {
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    for (const QString& language : languages) {
        if (isEnglish(language)) return;
        for (const QString& name : candidates(language)) {
            // Asked for a file that is not there, the toolkit would look for others itself.
            const QString file = QStringLiteral("%1/vantor_%2.qm").arg(folder, name);
            if (!QFile::exists(file) || !program_.load(file) || program_.isEmpty()) continue;
            name_ = name;
            // The one that is installed last is asked first.
            if (toolkit_.load(QStringLiteral("%1/qtbase_%2.qm")
                                  .arg(QLibraryInfo::path(QLibraryInfo::TranslationsPath), name)))
                QCoreApplication::installTranslator(&toolkit_);
            QCoreApplication::installTranslator(&program_);
            QGuiApplication::setLayoutDirection(QLocale(name).textDirection());
            return;
        }
    }
}

UserLanguage::~UserLanguage() {
    QCoreApplication::removeTranslator(&program_);
    QCoreApplication::removeTranslator(&toolkit_);
}

void adoptNumbersOfTheUser() {
    QLocale locale = QLocale::system();
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    QLocale::setDefault(locale);
}

}  // namespace vantor
