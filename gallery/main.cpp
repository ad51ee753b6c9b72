#include <QApplication>
#include <QCommandLineParser>
#include <QScrollArea>
#include <QStyleFactory>
#include <QTabWidget>

#include "app/user_language.h"
#include "ui/components/accessible_views.h"
#include "ui/components/make_child.h"

#include "gallery_view.h"
#include "pictures.h"

/// Shows every component and card in every state; or, with --pictures FOLDER, draws them and the
/// dashboards of recorded machines into files and ends.
namespace {

template <class Number>
std::vector<Number> numbers(const QString& text) {
    std::vector<Number> result;
    for (const QString& part : text.split(u','))
        result.push_back(static_cast<Number>(part.toDouble()));
    return result;
}

std::vector<QSize> sizes(const QString& text) {
    std::vector<QSize> result;
    for (const QString& part : text.split(u',', Qt::SkipEmptyParts))
        result.emplace_back(part.section(u'x', 0, 0).toInt(), part.section(u'x', 1).toInt());
    return result;
}

int showGallery() {
    QTabWidget window;
    for (const auto scheme : {vantor::ColorScheme::dark, vantor::ColorScheme::light}) {
        auto* area = vantor::makeChild<QScrollArea>(&window);
        area->setWidgetResizable(true);
        area->setWidget(vantor::makeChild<vantor::GalleryView>(area, scheme));
        window.addTab(area, scheme == vantor::ColorScheme::dark ? QStringLiteral("Dark")
                                                                : QStringLiteral("Light"));
    }
    window.setWindowTitle(QStringLiteral("Vantor's components"));
    window.resize(1500, 900);
    window.show();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QApplication application(argc, argv);
    vantor::installViewAccessibility();
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Draw pictures into <folder> and end."),
                                      QStringLiteral("folder"));
    const QCommandLineOption widths(QStringLiteral("widths"),
                                    QStringLiteral("Widths of the dashboards in points."),
                                    QStringLiteral("list"), QStringLiteral("1280"));
    const QCommandLineOption scales(QStringLiteral("scales"),
                                    QStringLiteral("Device pixels per point."),
                                    QStringLiteral("list"), QStringLiteral("1"));
    const QCommandLineOption fontScale(QStringLiteral("font-scale"),
                                       QStringLiteral("How much larger the system's font is."),
                                       QStringLiteral("factor"), QStringLiteral("1"));
    const QCommandLineOption simulated(
        QStringLiteral("simulated"),
        QStringLiteral("Draw the dashboards of the simulated Macs as well."));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("The texts' and the numbers' language."),
                                      QStringLiteral("code"), QStringLiteral("en"));
    const QCommandLineOption windows(
        QStringLiteral("windows"),
        QStringLiteral("Sizes of windows, as 1280x820, to draw the dashboards in."),
        QStringLiteral("list"));
    parser.addOptions({pictures, widths, scales, windows, fontScale, simulated, language});
    parser.process(application);
    const vantor::UserLanguage texts({parser.value(language)});
    if (!texts.name().isEmpty()) {
        QLocale numbers(texts.name());
        numbers.setNumberOptions(numbers.numberOptions() | QLocale::OmitGroupSeparator);
        QLocale::setDefault(numbers);
    }
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * parser.value(fontScale).toDouble());
    QApplication::setFont(font);
    if (!parser.isSet(pictures)) return showGallery();
    const bool isDone =
        vantor::takePictures({parser.value(pictures), numbers<int>(parser.value(widths)),
                              numbers<double>(parser.value(scales)), sizes(parser.value(windows)),
                              parser.isSet(simulated)});
    return isDone ? 0 : 1;
}
