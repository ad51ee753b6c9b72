#include "app/tray/notifier_values.h"

namespace vantor {

QDBusArgument& operator<<(QDBusArgument& out, const BusPixmap& pixmap) {
    out.beginStructure();
    out << pixmap.width << pixmap.height << pixmap.bytes;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, BusPixmap& pixmap) {
    in.beginStructure();
    in >> pixmap.width >> pixmap.height >> pixmap.bytes;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const BusToolTip& toolTip) {
    out.beginStructure();
    out << toolTip.iconName << toolTip.pixmaps << toolTip.title << toolTip.text;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, BusToolTip& toolTip) {
    in.beginStructure();
    in >> toolTip.iconName >> toolTip.pixmaps >> toolTip.title >> toolTip.text;
    in.endStructure();
    return in;
}

}  // namespace vantor
