#pragma once

#include "ui/controls/skin_sign.h"

class QAbstractButton;

namespace morvane {

/// The picture of an option, such as the disc of a cloud cover. A click on it is a click on the option, which
/// is all that it says to those who cannot see it.
class OptionPicture : public SkinSign {
    Q_OBJECT
public:
    /// `picture` is a file below "\\Media". Lies on the option's parent, at `place` of that.
    OptionPicture(QAbstractButton& option, Skin& skin, const QString& picture, const QRect& place);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QAbstractButton& option_;
};

} // namespace morvane
