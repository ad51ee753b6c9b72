#pragma once

#include <QChar>
#include <QString>

namespace vantor {

/// Whether it is a decimal digit, in whatever script.
inline bool isDigit(QChar c) {
    return c.unicode() < 0x80 ? c >= u'0' && c <= u'9' : c.isDigit();
}

/// The zero of the script that the digit `c` is from.
inline QChar zeroOf(QChar c) {
    return QChar(static_cast<char16_t>(c.unicode() - c.digitValue()));
}

/// Whether reading from the right changes the order of what is in `text`.
inline bool readsFromTheRight(const QString& text) {
    for (const QChar c : text) {
        if (c.unicode() < 0x590) continue;
        const QChar::Direction direction = c.direction();
        if (direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN)
            return true;
    }
    return false;
}

}  // namespace vantor
