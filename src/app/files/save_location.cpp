#include "app/files/save_location.h"

#include <QDir>
#include <QFile>

#include "ui/shown_text.h"

namespace vantor {

std::filesystem::path pathOf(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

QString shownPath(const std::filesystem::path& path) {
    return shownText(QFile::decodeName(path.c_str()));
}

std::filesystem::path folderOf(const QString& typed, const std::filesystem::path& base) {
    std::filesystem::path path = base;
    if (typed == u"~" || typed.startsWith(QStringLiteral("~/"))) {
        path = pathOf(QDir::homePath() + typed.sliced(1));
    } else if (!typed.isEmpty()) {
        path /= pathOf(typed);  // which replaces the base where it is absolute
    }
    path = path.lexically_normal();
    return path.has_filename() || path == path.root_path() ? path : path.parent_path();
}

std::filesystem::path fileOf(const QString& typed, const std::filesystem::path& base,
                             const QString& ending) {
    const QString name = typed.trimmed();
    if (name.isEmpty()) return {};
    std::filesystem::path file = folderOf(name, base);
    const QString last = name.section(u'/', -1);
    const bool isFolder = last.isEmpty() || last == u"." || last == u".." || last == u"~";
    if (!isFolder && !ending.isEmpty() && !file.has_extension()) file += '.' + ending.toStdString();
    return file;
}

}  // namespace vantor
