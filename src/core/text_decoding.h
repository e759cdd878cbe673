#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace morvane {

/// The text of a file that says nothing about its encoding: reports, plans, imports. UTF-8 (a byte-order mark
/// is dropped) where all of it is valid, else Latin-1, which takes any byte. NUL becomes a blank.
QString decodeText(const QByteArray& bytes);

/// The lines of a text. LF and CR LF give the same list; a text that ends in a line end has an empty last
/// element. An empty text has no line. A CR that no LF follows is part of its line.
QStringList splitLines(const QString& text);

} // namespace morvane
