#include "ui/controls/wrapped_tip.h"

#include "core/literals.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>
#include <QToolTip>

namespace morvane {

namespace {

QStringList wrappedLines(const QString& paragraph, int width) {
    QTextLayout layout(paragraph, QToolTip::font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines += paragraph.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines.isEmpty() ? QStringList{paragraph} : lines;
}

} // namespace

QString wrappedTip(const QString& text, int width) {
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n'))
        lines += wrappedLines(paragraph, width);
    const QString wrapped = lines.join(u'\n');
    if (!Qt::mightBeRichText(wrapped)) return wrapped;
    return u"<p style='white-space:pre'>"_s + wrapped.toHtmlEscaped() + u"</p>"_s;
}

} // namespace morvane
