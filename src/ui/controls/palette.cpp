#include "ui/controls/palette.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>
#include <QWidget>

namespace morvane::palette {

namespace {

PaperPalette paletteInUse = PaperPalette::day;

QColor colour(const PaperColour& role) {
    return QColor::fromRgb(now(role));
}

} // namespace

PaperPalette inUse() {
    return paletteInUse;
}

QRgb now(const PaperColour& colour) {
    return colour.in(paletteInUse);
}

QPalette ofWidgets() {
    const QColor text = colour(paper::text), off = colour(paper::textOff);
    QPalette colours(text, colour(paper::foot), colour(paper::buttonTop), colour(paper::rule),
                     colour(paper::fieldLine), text, colour(paper::signalRed), colour(paper::field),
                     colour(paper::top));
    colours.setColor(QPalette::Midlight, colour(paper::hair));
    colours.setColor(QPalette::Highlight, colour(paper::selectedRow));
    colours.setColor(QPalette::HighlightedText, text);
    colours.setColor(QPalette::PlaceholderText, off);
    colours.setColor(QPalette::LinkVisited, colour(paper::quietTitle));
    colours.setColor(QPalette::ToolTipBase, colour(paper::tipGround));
    colours.setColor(QPalette::ToolTipText, colour(paper::tipText));
    for (const auto role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::HighlightedText})
        colours.setColor(QPalette::Disabled, role, off);
    return colours;
}

void use(PaperPalette palette) {
    paletteInUse = palette;
    QApplication::setPalette(ofWidgets());
    QToolTip::setPalette(ofWidgets());
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) // what paints itself takes no note of a palette
        widget->update();
}

} // namespace morvane::palette
