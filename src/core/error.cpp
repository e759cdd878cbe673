#include "core/error.h"

namespace morvane {

namespace {

QString tableText(ErrorCode code) {
    switch (code) {
    case ErrorCode::invalidCall:
        return u"Invalid procedure call or argument"_s;
    case ErrorCode::overflow:
        return u"Overflow"_s;
    case ErrorCode::outOfMemory:
        return u"Out of memory"_s;
    case ErrorCode::subscript:
        return u"Subscript out of range"_s;
    case ErrorCode::divisionByZero:
        return u"Division by zero"_s;
    case ErrorCode::typeMismatch:
        return u"Type mismatch"_s;
    case ErrorCode::cannotOpenForWriting:
        return u"Can't open file for writing"_s;
    case ErrorCode::interrupted:
        return u"User interrupt occurred"_s;
    case ErrorCode::fileNotFound:
        return u"File not found"_s;
    case ErrorCode::ioFailure:
        return u"Device I/O error"_s;
    case ErrorCode::diskFull:
        return u"Disk full"_s;
    case ErrorCode::permissionDenied:
        return u"Permission denied"_s;
    case ErrorCode::otherDrive:
        return u"Can't move to another drive"_s;
    case ErrorCode::pathNotFound:
        return u"Path not found"_s;
    case ErrorCode::folderNotEmpty:
        return u"Folder not empty"_s;
    case ErrorCode::invalidPropertyValue:
        return u"Invalid property value"_s;
    case ErrorCode::duplicateKey:
        return u"This key is already associated with an element of this collection"_s;
    case ErrorCode::invalidPicture:
        return u"Invalid picture"_s;
    case ErrorCode::storeFailure:
        return u"The database cannot be used"_s;
    }
    return u"Application-defined or object-defined error"_s;
}

} // namespace

Error::Error(ErrorCode code, const QString& detail)
    : code_(code), description_(detail.isEmpty() ? tableText(code) : tableText(code) + u": "_s + detail),
      utf8_(description_.toUtf8()) {}

Error Error::withDescription(ErrorCode code, const QString& description) {
    Error error(code);
    error.description_ = description;
    error.utf8_ = description.toUtf8();
    return error;
}

} // namespace morvane
