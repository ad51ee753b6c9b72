#include "app/files/save_panel_texts.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include "app/files/folder_looks.h"
#include "ui/translate.h"

namespace vantor {

QString diskDoesNotAnswer() {
    return translate("SavePanel",
                     "The disk does not answer. Please choose another folder, or try again.");
}

QString whyFolderIsNotRead(int error) {
    switch (error) {
        case ENOENT:
            return translate("SavePanel", "The folder does not exist.");
        case ENOTDIR:
            return translate("SavePanel", "This is not a folder.");
        case EACCES:
        case EPERM:
            return translate("SavePanel",
                             "You do not have the permission to look into this folder.");
        default:
            return translate("SavePanel", "The folder cannot be read.");
    }
}

QString whyFolderIsNotMade(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
        case EROFS:
            return translate("SavePanel", "You do not have the permission to make a folder here.");
        case ENAMETOOLONG:
            return translate("SavePanel", "The name is too long.");
        default:
            return translate("SavePanel", "The folder could not be made.");
    }
}

QString nameOfSavePlace(const SavePlace& place) {
    static constexpr std::array names{
        QT_TRANSLATE_NOOP("SavePanel", "Home"), QT_TRANSLATE_NOOP("SavePanel", "Documents"),
        QT_TRANSLATE_NOOP("SavePanel", "Desktop"), QT_TRANSLATE_NOOP("SavePanel", "Downloads"),
        QT_TRANSLATE_NOOP("SavePanel", "Computer")};
    const auto found = std::ranges::find(names, std::string_view(place.name),
                                         [](const char* name) { return std::string_view(name); });
    return found != names.end() ? translate("SavePanel", *found)
                                : QString::fromStdString(place.name);
}

}  // namespace vantor
