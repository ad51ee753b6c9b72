#include "ui/core_words.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <vector>

#include "ui/shown_text.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr auto coreWordsContext = "CoreWords";

constexpr std::array coreWords{
    QT_TRANSLATE_NOOP("CoreWords", "Detecting processor…"),
    QT_TRANSLATE_NOOP("CoreWords", "Detecting host…"),
    QT_TRANSLATE_NOOP("CoreWords", "Detecting hardware…"),
    QT_TRANSLATE_NOOP("CoreWords", "Detecting macOS…"),
    //: what the machine does not tell
    QT_TRANSLATE_NOOP("CoreWords", "Unknown"),
    //: how hot the machine is: as usual
    QT_TRANSLATE_NOOP("CoreWords", "Nominal"),
    //: how hot the machine is: a little
    QT_TRANSLATE_NOOP("CoreWords", "Fair"),
    //: how hot the machine is: it slows down
    QT_TRANSLATE_NOOP("CoreWords", "Serious"),
    //: how hot the machine is: it may turn itself off
    QT_TRANSLATE_NOOP("CoreWords", "Critical"),
    //: of a battery that has no name
    QT_TRANSLATE_NOOP("CoreWords", "Battery"),
    QT_TRANSLATE_NOOP("CoreWords", "Live Linux performance intelligence"),
    QT_TRANSLATE_NOOP("CoreWords", "Live macOS performance intelligence"),
    QT_TRANSLATE_NOOP("CoreWords", "Unknown Computer"),
    QT_TRANSLATE_NOOP("CoreWords", "Unknown Mac"),
    QT_TRANSLATE_NOOP("CoreWords", "No Graphics Device"),
    QT_TRANSLATE_NOOP("CoreWords", "No Metal Device"),
    QT_TRANSLATE_NOOP("CoreWords", "The active graphics driver did not expose a graphics device."),
    QT_TRANSLATE_NOOP("CoreWords", "The active graphics driver did not expose a Metal device."),
    QT_TRANSLATE_NOOP("CoreWords", "No browsable mounted volume was returned by Linux."),
    QT_TRANSLATE_NOOP("CoreWords", "No browsable mounted volume was returned by macOS."),
    //: what the figure "Nominal" of the processor means
    QT_TRANSLATE_NOOP("CoreWords",
                      "Nominal is the frequency that the processor is made for, as its driver or "
                      "its name tells it, not the present one."),
    //: what the figure "Wired" of the memory means
    QT_TRANSLATE_NOOP("CoreWords",
                      "Wired is memory that cannot be moved out: the kernel's own and what "
                      "programs have locked."),
    //: what the figure "Compressed" of the memory means
    QT_TRANSLATE_NOOP("CoreWords",
                      "Compressed is the memory that zram and zswap keep compressed pages in."),
    //: what the figure "Thermal State" means
    QT_TRANSLATE_NOOP(
        "CoreWords",
        "Thermal State compares the thermal zones with their own limits: Fair where the kernel "
        "begins to slow down, Serious where it is nearly too hot, Critical where it switches off."),
    //: what the figure "Low Power Mode" means
    QT_TRANSLATE_NOOP("CoreWords",
                      "Low Power Mode is on while the firmware's profile or the processors' own "
                      "preference is to save power."),
    //: the load of the graphics device is known for the user's processes only
    QT_TRANSLATE_NOOP("CoreWords", "Load of your own processes"),
    //: the title of the dialog that asks where to save
    QT_TRANSLATE_NOOP("CoreWords", "Export System Snapshot"),
    //: the title of an alert
    QT_TRANSLATE_NOOP("CoreWords", "Snapshot Export Failed"),
    //: whether the kernel confines the program, behind a colon
    QT_TRANSLATE_NOOP("CoreWords", "yes"),
    //: whether the kernel confines the program, behind a colon
    QT_TRANSLATE_NOOP("CoreWords", "no"),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "Something that is not an ordinary file has that name."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "You do not have the permission to write there."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "You have used up the space that you may use on the disk."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The file would be larger than it may be there."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The disk could not be written to."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "A folder has that name."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The symbolic links there lead in a circle."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "Too many files are open."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The name is too long."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The disk is not there any more."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The folder does not exist."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "There is not enough memory."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "There is not enough space on the disk."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The place for it is not a folder."),
    //: why a file could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The disk can only be read."),
    //: why settings could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "Too many damaged files are kept there."),
    //: why the program cannot be opened at login
    QT_TRANSLATE_NOOP("CoreWords", "The program's own file has no name that can be kept."),
    //: why settings could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The file would be too large."),
    //: why settings could not be saved
    QT_TRANSLATE_NOOP("CoreWords", "The disk does not answer.")};

/// With places for what is the machine's, or another of these texts.
constexpr std::array coreSentences{
    //: %1 is a file's name, %2 the sentence that says why
    QT_TRANSLATE_NOOP("CoreWords", "\"%1\" could not be saved. %2"),
    //: %1 is the system's own text, %2 its number
    QT_TRANSLATE_NOOP("CoreWords", "The system gave the reason \"%1\" (%2)."),
    //: whether the program is opened at login; %1 is a sentence that says why
    QT_TRANSLATE_NOOP("CoreWords", "Not known: %1"),
    //: whether the program is opened at login; %1 is a sentence that says why
    QT_TRANSLATE_NOOP("CoreWords", "Not changed: %1"),
    //: whether the program is opened at login; %1 is a sentence that says why
    QT_TRANSLATE_NOOP("CoreWords", "Not changed yet: %1"),
    //: whether the kernel confines the program, behind a colon; %1 is a list of names
    QT_TRANSLATE_NOOP("CoreWords", "in part (without %1)")};

const char* coreWordEqualTo(std::string_view english) {
    const auto found = std::ranges::find_if(
        coreWords, [&](const char* word) { return english == std::string_view(word); });
    return found == coreWords.end() ? nullptr : *found;
}

std::optional<std::vector<std::string_view>> placesIn(std::string_view sentence,
                                                      std::string_view english) {
    std::vector<std::string_view> places;
    const auto first = sentence.find("%1");
    if (!english.starts_with(sentence.substr(0, first))) return std::nullopt;
    english.remove_prefix(first);
    sentence.remove_prefix(first + 2);
    if (const auto second = sentence.find("%2"); second != std::string_view::npos) {
        // The last one: what is in quotes may have quotes of its own.
        const auto between = english.rfind(sentence.substr(0, second));
        if (between == std::string_view::npos) return std::nullopt;
        places.push_back(english.substr(0, between));
        english.remove_prefix(between + second);
        sentence.remove_prefix(second + 2);
    }
    if (!english.ends_with(sentence)) return std::nullopt;
    english.remove_suffix(sentence.size());
    places.push_back(english);
    return places;
}

/// English goes on in lower case behind a colon; the catalogues know the whole sentence.
QString wordedRest(std::string_view rest) {
    if (rest.empty()) return {};
    std::string sentence(rest);
    sentence.front() =
        static_cast<char>(std::toupper(static_cast<unsigned char>(sentence.front())));
    const QString worded = wordedForPeople(sentence);
    return worded == shownText(sentence) ? wordedForPeople(rest) : worded;
}

}  // namespace

QString wordedForPeople(std::string_view english) {
    if (const char* const known = coreWordEqualTo(english))
        return translate(coreWordsContext, known);
    for (const char* const sentence : coreSentences) {
        const auto places = placesIn(sentence, english);
        if (!places) continue;
        const QString worded = translate(coreWordsContext, sentence);
        if (places->size() == 1) return worded.arg(wordedRest(places->front()));
        return worded.arg(wordedForPeople(places->front()), wordedForPeople(places->back()));
    }
    return shownText(QString::fromUtf8(english.data(), static_cast<qsizetype>(english.size())));
}

QString wordedAsRest(const QString& sentence, std::string_view reason) {
    const QString worded = wordedForPeople(reason);
    const bool isEnglish =
        worded == QString::fromUtf8(reason.data(), static_cast<qsizetype>(reason.size()));
    return sentence.arg(isEnglish ? worded.left(1).toLower() + worded.mid(1) : worded);
}

bool isWordedForPeople(std::string_view english) {
    return coreWordEqualTo(english) != nullptr ||
           std::ranges::any_of(coreSentences, [&](const char* sentence) {
               return placesIn(sentence, english).has_value();
           });
}

}  // namespace vantor
