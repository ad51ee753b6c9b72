#pragma once

#include <QString>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace vantor {

/// `text` so that a tool tip shows it letter by letter: the toolkit takes what looks like markup
/// for markup, and escapes in anything else for text. A text too long for any screen loses its
/// middle, since a path ends with what tells it from others.
inline QString toolTipText(const QString& text) {
    constexpr qsizetype longest = 1024;
    QString shown = text;
    if (text.size() > longest) {
        qsizetype head = longest / 2;
        qsizetype tail = text.size() - longest / 2;
        if (text[head].isLowSurrogate()) --head;
        if (text[tail].isLowSurrogate()) ++tail;
        shown = text.left(head) + u'…' + text.sliced(tail);
    }
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal)
                                      : shown;
}

/// What whoever sees a tool tip reads.
inline QString readToolTip(const QString& toolTip) {
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText()
                                        : toolTip;
}

}  // namespace vantor
