#pragma once

#include <QString>

namespace vantor {

struct SavePlace;

/// What the panel that asks where to save says of folders and of the disk.
QString diskDoesNotAnswer();
QString whyFolderIsNotRead(int error);
QString whyFolderIsNotMade(int error);

/// Of a well-known folder: those are known by their English names.
QString nameOfSavePlace(const SavePlace& place);

}  // namespace vantor
