#pragma once

#include <QString>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace vantor {

/// `text` so that a tool tip shows it literally: the toolkit treats what looks like markup as
/// markup, and escapes in anything else as text. A text too long for any screen loses its middle,
/// since paths differ at their end.
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

/// The text that a tool tip shows.
inline QString readToolTip(const QString& toolTip) {
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText()
                                        : toolTip;
}

}  // namespace vantor
