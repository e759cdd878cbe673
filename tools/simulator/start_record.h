#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>

namespace morvane {

/// The record that the sample simulator's stand-in keeps beside itself, "fs9.starts.jsonl": a line of JSON
/// for each start, with "program", "arguments" and "workingFolder".

/// Adds a line, in one write, to the record in that folder. False when that cannot be.
bool recordStart(const QString& folder, const QString& program, const QStringList& arguments,
                 const QString& workingFolder);

/// The whole lines of the record in that folder, oldest first, without their line ends.
QByteArrayList recordedStarts(const QString& folder);

} // namespace morvane
