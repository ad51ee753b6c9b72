#pragma once

#include <QString>

#include <string>

#include "ui/translate.h"

namespace vantor {

/// A kind of file, as dialogs call it.
struct FileKind {
    QString name;
    QString ending;  ///< of its files' names, without the dot; empty: any
};

/// By its MIME type.
inline FileKind kindOfFile(const std::string& contentType) {
    if (contentType == "application/json")
        return {//: a kind of file
                translate("SavePanel", "JSON document"), QStringLiteral("json")};
    return {//: a kind of file: any
            translate("SavePanel", "All files"), QString()};
}

}  // namespace vantor
