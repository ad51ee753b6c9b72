#pragma once

#include <QString>

#include <string>

namespace vantor {

/// A name or path that others have chosen, fit to be painted, put into tool tips, copied and read
/// aloud: on one line, with nothing in it that changes how the text around it looks or that hides a
/// difference. The true text is the record's, which the exported document has.
///
/// - Control characters, tabs, line breaks (U+2028 and U+2029, too), halves of surrogate pairs,
///   private and unassigned code points become U+FFFD, which can be seen.
/// - Signs of direction (U+061C, U+200E, U+200F, U+202A to U+202E, U+2066 to U+2069) go.
/// - What takes no room and is not seen (U+200B, U+00AD, U+FEFF, tags, fillers) becomes U+FFFD, but
///   joiners and variation selectors stay after a character outside ASCII: Persian names and
///   pictures of people are made with them.
/// - Blanks of any width become U+0020.
/// - Of combining marks in a row, four stay: no language stacks more.
///
/// Its length stays: names are as long as the system lets them be, and what is shown cuts them.
/// A text that begins like a spreadsheet formula stays, too: "-bash" is an ordinary name, a mark
/// before it would be copied into shells and searches, and spreadsheets ask before they evaluate
/// pasted text.
///
/// Ordinary texts come back as they are, without a copy.
QString shownText(QString text);

/// The same of UTF-8; what is malformed becomes U+FFFD.
QString shownText(const std::string& text);

/// `text` for a place within other text: one with letters that are read from right to left is set
/// apart (U+2068, U+2069), so that figures next to it keep their order. The marks take no room.
QString isolatedText(const QString& text);

}  // namespace vantor
