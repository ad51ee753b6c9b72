#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace vantor {

/// What the readers, the settings and the platform say in words, such as "Nominal" or why a file
/// could not be saved, in the user's language. The records and the exported document keep the
/// English values; they are worded here, where they are shown. A text that is none of the
/// program's own, such as a name, comes back as shownText shows it.
QString wordedForPeople(std::string_view english);

/// `reason` as the rest of a sentence that "%1" in `sentence` stands for; English continues in
/// lower case, and translations keep the case that they have.
QString wordedAsRest(const QString& sentence, std::string_view reason);

/// Whether there is a place for this text in the catalogues.
bool isWordedForPeople(std::string_view english);

}  // namespace vantor
