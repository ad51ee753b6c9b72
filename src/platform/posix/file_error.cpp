#include "platform/posix/file_error.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "model/utf8.h"

namespace vantor {

namespace {

std::string reason(int error) {
    switch (error) {
        case notAnOrdinaryFile:
            return "Something that is not an ordinary file has that name.";
        case EACCES:
        case EPERM:
            return "You do not have the permission to write there.";
        case EDQUOT:
            return "You have used up the space that you may use on the disk.";
        case EFBIG:
            return "The file would be larger than it may be there.";
        case EIO:
            return "The disk could not be written to.";
        case EISDIR:
            return "A folder has that name.";
        case ELOOP:
            return "The symbolic links there lead in a circle.";
        case EMFILE:
        case ENFILE:
            return "Too many files are open.";
        case ENAMETOOLONG:
            return "The name is too long.";
        case ENODEV:
        case ENXIO:
        case ESTALE:
        case ENOTCONN:
        case EHOSTDOWN:
        case ETIMEDOUT:
            return "The disk is not there any more.";
        case ENOENT:
            return "The folder does not exist.";
        case ENOMEM:
            return "There is not enough memory.";
        case ENOSPC:
            return "There is not enough space on the disk.";
        case ENOTDIR:
            return "The place for it is not a folder.";
        case EROFS:
            return "The disk can only be read.";
        default:
            return "The system gave the reason \"" + std::generic_category().message(error) +
                   "\" (" + std::to_string(error) + ").";
    }
}

}  // namespace

DescribedError describeFileError(int error, const std::filesystem::path& destination) {
    const std::string& path = destination.native();
    const std::string name = destination.filename().native();
    std::string description(1, '"');
    description.append(repairedUTF8(name.empty() ? path : name));
    description.append("\" could not be saved. ").append(reason(error));
    return {std::move(description)};
}

}  // namespace vantor
