#pragma once

#include <QString>

#include <string>

namespace vantor {

/// A kind of file, as dialogs call it.
struct FileKind {
    QString name;
    QString ending;  ///< of its files' names, without the dot; empty: any
};

/// By its MIME type.
inline FileKind kindOfFile(const std::string& contentType) {
    if (contentType == "application/json")
        return {QStringLiteral("JSON document"), QStringLiteral("json")};
    return {QStringLiteral("All files"), QString()};
}

}  // namespace vantor
