#pragma once

#include <QProxyStyle>

class QAbstractButton;

namespace morvane {

/// How plain controls look on the pages: edits, check and option boxes, plain buttons, lists, scroll bars,
/// progress bars and tips. Everything it does not tell is Fusion's.
class PaperStyle : public QProxyStyle {
    Q_OBJECT
public:
    PaperStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    QPalette standardPalette() const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

/// Gives the program this style, its palette, its font and the colours of its tips.
void applyPaperStyle();

/// Makes a plain button look like a skinned key, or a box's caption bright, for one that lies on bezel or
/// deck.
void setOnDark(QAbstractButton& button);
/// Where the caption of a check or option box starts, in logical pixels from the box's left edge, where that
/// is not the style's own 23 or 21.
void setCaptionOffset(QAbstractButton& button, int offset);
/// A check box that is dead shows its caption as if it were not.
void keepCaptionAlive(QAbstractButton& button);

} // namespace morvane
