#pragma once

#include "ui/controls/labels.h"
#include "ui/controls/skin_sign.h"

#include <QLabel>

namespace morvane {

class Form;

/// A cover's picture and its words beside it.
class CoverLabel {
public:
    struct Names {
        QString picture, text; ///< of the two controls
    };
    static constexpr int side = 44; ///< of the picture, logical pixels

    /// The picture's corner at `place`; the words take `width` beside it.
    CoverLabel(Form& form, const Names& names, const QPoint& place, int width);

    /// Shows a class above 0.
    void showCover(int cloudClass);
    /// Words without a picture, in that ink.
    void showText(const QString& text, Ink ink);
    void clear();

private:
    SkinSign* picture_;
    QLabel* text_;
};

} // namespace morvane
