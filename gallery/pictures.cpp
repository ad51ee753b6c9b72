#include "pictures.h"

#include <QDir>
#include <QImage>
#include <QTextStream>

#include <cmath>

#include "gallery_view.h"
#include "lived_machine.h"
#include "recorded_life.h"

namespace vantor {

namespace {

constexpr int stepsOfLife = 90;
constexpr int galleryWidth = 1480;

QString nameOf(ColorScheme scheme) {
    return scheme == ColorScheme::dark ? QStringLiteral("dark") : QStringLiteral("light");
}

bool save(QWidget& widget, QSize size, double scale, const QString& file) {
    widget.resize(size);
    settleEvents();
    QImage image(QSize(static_cast<int>(std::ceil(size.width() * scale)),
                       static_cast<int>(std::ceil(size.height() * scale))),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QTextStream(stdout) << file << Qt::endl;
    constexpr int smallest = 0;  // of the format's qualities: they all hold the same picture
    return image.save(file, "PNG", smallest);
}

QString suffix(int width, double scale, const PictureOptions& options) {
    QString text;
    if (options.widths.size() > 1) text += QStringLiteral("-%1").arg(width);
    if (options.scales.size() > 1) text += QStringLiteral("@%1x").arg(scale);
    return text;
}

bool takeDashboard(LivedDashboard& dashboard, ColorScheme scheme, const QString& name,
                   const PictureOptions& options) {
    bool isSaved = true;
    for (const QSize size : options.windows) {
        const QString file = QStringLiteral("%1/dashboard-%2-%3-%4x%5.png")
                                 .arg(options.folder, name, nameOf(scheme))
                                 .arg(size.width())
                                 .arg(size.height());
        isSaved = save(dashboard.view(), size, 1, file) && isSaved;
    }
    if (!options.windows.empty()) return isSaved;
    for (const int width : options.widths) {
        for (const double scale : options.scales) {
            const QString file =
                QStringLiteral("%1/dashboard-%2-%3%4.png")
                    .arg(options.folder, name, nameOf(scheme), suffix(width, scale, options));
            const QSize size(width, dashboard.wholeHeight(width));
            isSaved = save(dashboard.view(), size, scale, file) && isSaved;
        }
    }
    return isSaved;
}

}  // namespace

bool takePictures(const PictureOptions& options) {
    if (!QDir().mkpath(options.folder)) return false;
    bool isSaved = true;
    for (const ColorScheme scheme : {ColorScheme::dark, ColorScheme::light}) {
        QApplication::setPalette(paletteOf(scheme));
        GalleryView gallery(scheme);
        // What is hidden lays nothing out, and shows scroll bars that it does not need.
        gallery.setAttribute(Qt::WA_DontShowOnScreen);
        gallery.show();
        const QSize size(galleryWidth, gallery.heightForWidth(galleryWidth));
        const QString file =
            QStringLiteral("%1/gallery-%2.png").arg(options.folder, nameOf(scheme));
        isSaved = save(gallery, size, 1, file) && isSaved;
        const auto take = [&](LivedDashboard& dashboard, const QString& name) {
            isSaved = takeDashboard(dashboard, scheme, name, options) && isSaved;
        };
        for (const auto& dashboard : recordedDashboards(scheme, stepsOfLife))
            take(*dashboard, dashboard->name());
        if (!options.simulated) continue;
        for (const LivedMachine& machine : livedMachines()) {
            LivedDashboard dashboard(machine, scheme, stepsOfLife);
            take(dashboard, machine.name());
        }
        LivedDashboard waiting(livedMachines().front(), scheme, 0);
        take(waiting, QStringLiteral("waiting"));
    }
    return isSaved;
}

}  // namespace vantor
