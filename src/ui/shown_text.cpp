#include "ui/shown_text.h"

#include <QStringView>

#include <algorithm>

namespace vantor {

namespace {

constexpr int maxMarks = 4;
constexpr char32_t replacement = QChar::ReplacementCharacter;

enum class Treatment { keep, blank, replace, drop, joiner, selector, mark };

constexpr bool isWithin(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

constexpr bool isOrdinary(char16_t c) {
    return isWithin(c, 0x20, 0x7E);
}

constexpr bool isDirection(char32_t c) {
    return c == 0x061C || c == 0x200E || c == 0x200F || isWithin(c, 0x202A, 0x202E) ||
           isWithin(c, 0x2066, 0x2069);
}

constexpr bool isSelector(char32_t c) {
    return isWithin(c, 0xFE00, 0xFE0F) || isWithin(c, 0xE0100, 0xE01EF) ||
           isWithin(c, 0x180B, 0x180D) || c == 0x180F;
}

/// For letters and marks; format characters are invisible anyway, except those below.
constexpr bool isInvisible(char32_t c) {
    return c == 0x034F || isWithin(c, 0x115F, 0x1160) || isWithin(c, 0x17B4, 0x17B5) ||
           c == 0x3164 || c == 0xFFA0;
}

/// Signs before or around numbers.
constexpr bool isVisibleFormat(char32_t c) {
    return isWithin(c, 0x0600, 0x0605) || c == 0x06DD || c == 0x070F ||
           isWithin(c, 0x0890, 0x0891) || c == 0x08E2 || c == 0x110BD || c == 0x110CD;
}

Treatment treatmentOf(char32_t c) {
    if (isDirection(c)) return Treatment::drop;
    if (isSelector(c)) return Treatment::selector;
    if (c == 0x200C || c == 0x200D) return Treatment::joiner;
    if (isInvisible(c)) return Treatment::replace;
    if (c == 0x2800) return Treatment::blank;  // a pattern of Braille without dots
    switch (QChar::category(c)) {
        case QChar::Separator_Space:
            return Treatment::blank;
        case QChar::Mark_NonSpacing:
        case QChar::Mark_Enclosing:
            return Treatment::mark;
        case QChar::Other_Format:
            return isVisibleFormat(c) ? Treatment::keep : Treatment::replace;
        case QChar::Other_Control:
        case QChar::Other_Surrogate:
        case QChar::Other_PrivateUse:
        case QChar::Other_NotAssigned:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return Treatment::replace;
        default:
            return Treatment::keep;
    }
}

void append(QString& text, char32_t c) {
    for (const char16_t unit : QChar::fromUcs4(c))
        text += QChar(unit);
}

/// The code point at `place`, which is moved behind it.
char32_t nextOf(QStringView text, qsizetype& place) {
    const QChar first = text[place++];
    if (!first.isHighSurrogate() || place == text.size() || !text[place].isLowSurrogate())
        return first.unicode();
    return QChar::surrogateToUcs4(first, text[place++]);
}

QString treated(QStringView text) {
    QString result;
    result.reserve(text.size());
    int marks = 0;
    char32_t before = 0;  // what a joiner or selector would belong to
    for (qsizetype i = 0; i < text.size();) {
        char32_t c = nextOf(text, i);
        const Treatment treatment = treatmentOf(c);
        if (treatment == Treatment::drop) continue;
        if (treatment == Treatment::mark && ++marks > maxMarks) continue;
        const bool isAttached = treatment == Treatment::joiner || treatment == Treatment::selector;
        if (treatment == Treatment::replace || (isAttached && before < 0x80)) c = replacement;
        if (treatment == Treatment::blank) c = U' ';
        append(result, c);
        // Marks go on in the same stack behind a joiner or selector, and one of those is enough.
        if (isAttached) {
            before = 0;
        } else {
            before = c;
            if (treatment != Treatment::mark) marks = 0;
        }
    }
    return result;
}

}  // namespace

QString shownText(QString text) {
    const bool isAllOrdinary =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return isOrdinary(c.unicode()); });
    if (isAllOrdinary) return text;
    return treated(text);
}

QString shownText(const std::string& text) {
    return shownText(QString::fromStdString(text));
}

QString isolatedText(const QString& text) {
    return text.isRightToLeft() || std::any_of(text.begin(), text.end(),
                                               [](QChar c) {
                                                   return c.direction() == QChar::DirR ||
                                                          c.direction() == QChar::DirAL ||
                                                          c.direction() == QChar::DirAN ||
                                                          c.isSurrogate();
                                               })
               ? QChar(0x2068) + text + QChar(0x2069)
               : text;
}

}  // namespace vantor
