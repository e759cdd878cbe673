#pragma once

#include "ui/controls/sign_button.h"

#include <QWidget>

class QLabel;

namespace morvane {

class ucSlider;

/// The names of a colour's controls and what the user reads of it.
struct SliderRowSetup {
    QString slider; ///< "vcRed"; its buttons are then "cmdRedMinus", "cmdRedPlus" and "cmdRedReset"
    QString label;  ///< "lblRed"
    QString caption;
    QPoint place;
};

/// One colour of a colour page: name, "-", slider, "+", value and reset. The value is a percentage, -100 to
/// 100.
class SliderRow : public QWidget {
    Q_OBJECT
public:
    SliderRow(const SliderRowSetup& setup, QWidget* parent);

    int value() const;
    /// As if the user had moved the slider there: `changed` follows when the value is another one.
    void setValue(int value);
    /// The same with another text than the usual one in its label, until the value is set again.
    void setValue(int value, const QString& label);

Q_SIGNALS:
    void changed();

private:
    struct ButtonPlace {
        QString nameEnd, tip;
        int left;
    };
    void addButton(ButtonSign sign, const SliderRowSetup& setup, const ButtonPlace& place, int (*next)(int));

    ucSlider* slider_;
    QLabel* label_;
};

} // namespace morvane
