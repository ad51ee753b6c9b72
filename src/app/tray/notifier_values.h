#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QString>

namespace vantor {

/// A picture as it is sent: four bytes for each pixel, alpha first.
struct BusPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;
};
QDBusArgument& operator<<(QDBusArgument& out, const BusPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& in, BusPixmap& pixmap);

struct BusToolTip {
    QString iconName;
    QList<BusPixmap> pixmaps;
    QString title;
    QString text;
};
QDBusArgument& operator<<(QDBusArgument& out, const BusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& in, BusToolTip& toolTip);

}  // namespace vantor
