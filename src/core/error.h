#pragma once

#include "core/literals.h"

#include <QString>
#include <exception>

namespace morvane {

/// Numbers of the failures that the program tells apart. The texts stand in error.cpp.
enum class ErrorCode {
    invalidCall = 5,
    overflow = 6,
    outOfMemory = 7,
    subscript = 9,
    divisionByZero = 11,
    typeMismatch = 13,
    cannotOpenForWriting = 17,
    interrupted = 18, ///< what was begun is left, and the user knows why: nothing is told
    fileNotFound = 53,
    ioFailure = 57,
    diskFull = 61,
    permissionDenied = 70,
    otherDrive = 74,
    pathNotFound = 76,
    folderNotEmpty = 145,
    invalidPropertyValue = 380,
    duplicateKey = 457,
    invalidPicture = 481,
    storeFailure = 3709,
};

/// The one exception of the engine. It never leaves a routine that the user started: see failure_report.h.
class Error : public std::exception {
public:
    /// The description is the table's text, for file errors followed by ": " and the path.
    explicit Error(ErrorCode code, const QString& detail = {});
    /// A failure whose description comes from elsewhere (the store, the system).
    static Error withDescription(ErrorCode code, const QString& description);

    ErrorCode code() const { return code_; }
    const QString& description() const { return description_; }
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    ErrorCode code_;
    QString description_;
    QByteArray utf8_;
};

} // namespace morvane
