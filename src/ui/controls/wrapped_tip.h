#pragma once

#include <QString>

namespace morvane {

/// The text of a tip in lines of at most `width` logical pixels of the tips' own font; line ends of the text
/// stay. Qt would leave plain text on one line, however long. The result is always shown as it reads: a text
/// that looks like mark-up (the name of a set may) comes back escaped.
QString wrappedTip(const QString& text, int width = 400);

} // namespace morvane
