#include "ui/picture.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdlib>

namespace vantor {

namespace {

constexpr double largestMeanDifference = 2;
constexpr double largestShareOfOddPixels = 0.01;
constexpr int oddDifference = 32;

struct Difference {
    double mean = 0;      ///< of all channels
    double oddShare = 0;  ///< of the pixels
};

Difference differenceOf(const QImage& one, const QImage& other) {
    double sum = 0;
    int odd = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int red = std::abs(qRed(a) - qRed(b));
            const int green = std::abs(qGreen(a) - qGreen(b));
            const int blue = std::abs(qBlue(a) - qBlue(b));
            sum += red + green + blue;
            if (std::max({red, green, blue}) > oddDifference) ++odd;
        }
    }
    const double pixels = static_cast<double>(one.width()) * one.height();
    return {sum / (3 * pixels), odd / pixels};
}

bool save(const QImage& image, const QString& folder, const QString& file) {
    return QDir().mkpath(folder) && image.save(folder + u'/' + file, "png");
}

}  // namespace

testing::AssertionResult looksLike(const QImage& image, const std::string& name) {
    const QString file = QString::fromStdString(name) + QStringLiteral(".png");
    const QString folder = QStringLiteral(VANTOR_TESTS_DIR "/ui/pictures");
    const QImage actual = image.convertToFormat(QImage::Format_RGB32);
    if (QCoreApplication::arguments().contains(QStringLiteral("--update-pictures"))) {
        if (save(actual, folder, file)) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "cannot write " << file.toStdString();
    }
    const QImage agreed = QImage(folder + u'/' + file).convertToFormat(QImage::Format_RGB32);
    const QString failed = QStringLiteral(VANTOR_BUILD_DIR "/pictures-that-differ");
    const auto fail = [&] {
        save(actual, failed, file);
        return testing::AssertionFailure()
               << name << ": see " << failed.toStdString() << '/' << file.toStdString() << "; ";
    };
    if (agreed.isNull()) return fail() << "there is no agreed picture of it";
    if (agreed.size() != actual.size()) {
        return fail() << "the agreed picture is " << agreed.width() << 'x' << agreed.height()
                      << ", this one " << actual.width() << 'x' << actual.height();
    }
    const Difference difference = differenceOf(agreed, actual);
    if (difference.mean <= largestMeanDifference &&
        difference.oddShare <= largestShareOfOddPixels) {
        return testing::AssertionSuccess();
    }
    return fail() << "channels differ by " << difference.mean << " on average, "
                  << difference.oddShare * 100 << " % of the pixels are odd";
}

}  // namespace vantor
