#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <map>

#include "app/languages/catalogue_file.h"
#include "ui/rendering.h"

/// What desktops, software centres and `man` read: whether it speaks all complete languages.
namespace vantor::translated_files_test {
namespace {

QString contentOf(const QString& name) {
    QFile file(QStringLiteral(VANTOR_PACKAGING "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(TranslatedFiles, TheDesktopFileSpeaksAllCompleteLanguages) {
    const QStringList lines = contentOf(QStringLiteral("com.kestrone.Vantor.desktop")).split(u'\n');
    int found = 0;
    for (const QString& line : lines) {
        static const QRegularExpression english(
            QStringLiteral("^(Name|GenericName|Comment|Keywords)=(?!Vantor$)"));
        const auto key = english.match(line);
        if (!key.hasMatch()) continue;
        ++found;
        const qsizetype place = lines.indexOf(line);
        QStringList after;
        for (qsizetype next = place + 1; next < lines.size() && lines[next].contains(u'['); ++next)
            after << lines[next];
        for (const QString& language : completeLanguages()) {
            const QString start = QStringLiteral("%1[%2]=").arg(key.captured(1), language);
            const auto there = std::ranges::find_if(
                after, [&](const QString& each) { return each.startsWith(start); });
            ASSERT_NE(there, after.end()) << utf8(line) << " has none in " << utf8(language);
            EXPECT_GT(there->size(), start.size()) << utf8(*there);
        }
    }
    EXPECT_EQ(found, 9) << "kind, comment, keywords and six actions";
}

TEST(TranslatedFiles, TheMetainfoSpeaksAllCompleteLanguages) {
    QXmlStreamReader xml(contentOf(QStringLiteral("com.kestrone.Vantor.metainfo.xml")));
    std::map<QString, int> texts;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        static const QStringList worded{QStringLiteral("summary"), QStringLiteral("p"),
                                        QStringLiteral("li"), QStringLiteral("caption")};
        if (!worded.contains(xml.name())) continue;
        const QString language = xml.attributes().value(QStringLiteral("xml:lang")).toString();
        if (!xml.readElementText().trimmed().isEmpty()) ++texts[language];
    }
    EXPECT_FALSE(xml.hasError()) << utf8(xml.errorString());
    EXPECT_GT(texts[QString()], 8);
    for (const QString& language : completeLanguages())
        EXPECT_EQ(texts[language], texts[QString()]) << utf8(language);
}

TEST(TranslatedFiles, ThereIsAManualInEachCompleteLanguageWithAllOptions) {
    const QString english = contentOf(QStringLiteral("vantor.1"));
    static const QRegularExpression option(QStringLiteral("^\\.It Fl -.*$"),
                                           QRegularExpression::MultilineOption);
    const auto optionsOf = [](const QString& manual) {
        QStringList all;
        for (auto each = option.globalMatch(manual); each.hasNext();)
            all << each.next().captured();
        return all;
    };
    ASSERT_EQ(optionsOf(english).size(), 8);
    for (const QString& language : completeLanguages()) {
        const QString manual = contentOf(QStringLiteral("manuals/vantor.%1.1").arg(language));
        EXPECT_EQ(optionsOf(manual), optionsOf(english)) << utf8(language);
        EXPECT_NE(manual, english) << utf8(language);
    }
}

}  // namespace
}  // namespace vantor::translated_files_test
