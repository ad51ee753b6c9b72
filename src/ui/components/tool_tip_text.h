#pragma once

#include <QString>
#include <QTextDocument>

namespace vantor {

/// `text` so that a tool tip shows it letter by letter: the toolkit takes what looks like markup
/// for markup, and escapes in anything else for text.
inline QString toolTipText(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

}  // namespace vantor
