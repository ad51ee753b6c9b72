#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

#include <vector>

namespace vantor {

/// One text of a catalogue's source file.
struct CatalogueMessage {
    QString context;
    QString source;
    QString comment;
    bool isPlural = false;
    bool isFinished = false;
    QStringList translations;  ///< one, or one for each form of the plural
};

inline CatalogueMessage readMessage(QXmlStreamReader& xml, const QString& context) {
    CatalogueMessage message;
    message.context = context;
    message.isPlural = xml.attributes().value(QStringLiteral("numerus")) == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            if (!message.isPlural) {
                message.translations << xml.readElementText();
            } else {
                while (xml.readNextStartElement())
                    message.translations << xml.readElementText();
            }
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

/// All texts of translations/vantor_`language`.ts; none where it cannot be read.
inline std::vector<CatalogueMessage> readCatalogue(const QString& language) {
    QFile file(QStringLiteral(VANTOR_TRANSLATIONS "/vantor_%1.ts").arg(language));
    std::vector<CatalogueMessage> all;
    if (!file.open(QIODevice::ReadOnly)) return all;
    QXmlStreamReader xml(&file);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        QString context;
        while (xml.readNextStartElement()) {
            if (xml.name() == u"name") {
                context = xml.readElementText();
            } else {
                all.push_back(readMessage(xml, context));
            }
        }
    }
    return all;
}

/// The languages that are built into the program.
inline QStringList completeLanguages() {
    QFile file(QStringLiteral(VANTOR_TRANSLATIONS "/complete"));
    QStringList languages;
    if (!file.open(QIODevice::ReadOnly)) return languages;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (!line.isEmpty() && !line.startsWith(u'#')) languages << line.trimmed();
    }
    return languages;
}

}  // namespace vantor
