#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QLabel;
class QWidget;

namespace morvane {

/// What a text on a page is for: by this it has its size, weight, colour and place in its box.
enum class TextRole {
    pageTitle,
    messageTitle,
    optionCaption,
    body, ///< wraps
    sliderName,
    sliderValue, ///< at the right of its box
    value,       ///< in the middle of its line
    number,      ///< a value at the right of its box
    total,       ///< a sum at the right of its box
    longHelp,    ///< wraps
    remark,      ///< at the right of its box
    fieldCaption,
    sectionHeading, ///< shown in upper case
    listHead,
    darkTitle, ///< from here on texts on bezel and deck
    darkBody,  ///< wraps
    darkCaption,
    darkRemark,   ///< at the right of its box
    progressText, ///< wraps, at the foot of its box
    valueTip,
};

/// The colours of text: three on paper, two on bezel and deck.
enum class Ink { text, signalRed, quietTitle, bright, quiet };

QFont fontOf(TextRole role);
/// A label of that role in that place (logical pixels of the parent). The text is shown as it reads, never as
/// mark-up, and lets the mouse through.
QLabel* makeLabel(QWidget* parent, const QString& text, const QRect& place, TextRole role);
/// A fine line that parts one field of a page from the next.
QWidget* makeHair(QWidget* parent, const QRect& place);
/// The stronger line below a heading.
QWidget* makeRule(QWidget* parent, const QRect& place);
/// Paints the label's text in that ink, whatever its role says. Those of the paper follow the palette.
void setInk(QLabel& label, Ink ink);

} // namespace morvane
