#pragma once

#include <QPainterPath>
#include <QString>

namespace morvane {

/// Letters drawn as strokes. No font has to be installed, and no application object to exist, which is what
/// QPainter's text asks for.
///
/// Gives the centre lines of the text, to be stroked with a pen with round ends of about an eighth of
/// `height`. `height` is that of a capital; the origin is the left end of the base line. Characters without a
/// drawing are left blank.
QPainterPath letteringPath(const QString& text, qreal height);

/// Width of the same text.
qreal letteringWidth(const QString& text, qreal height);

} // namespace morvane
