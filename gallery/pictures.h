#pragma once

#include <QSize>
#include <QString>

#include <vector>

namespace vantor {

/// Which pictures of the whole dashboard are taken.
struct PictureOptions {
    QString folder;
    std::vector<int> widths{1280};
    std::vector<double> scales{1};
    std::vector<QSize> windows{};  ///< in place of the widths: as much as such a window shows
    bool simulated = false;        ///< the dashboards of the simulated Macs, too
};

/// Draws the gallery and each recorded machine's dashboard, dark and light, into PNG files. False
/// when one could not be written.
bool takePictures(const PictureOptions& options);

}  // namespace vantor
