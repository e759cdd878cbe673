#include "ui/controls/slider_row.h"

#include "core/literals.h"
#include "imaging/slider_steps.h"
#include "ui/controls/labels.h"
#include "ui/controls/slider.h"

#include <QLabel>

namespace morvane {

namespace {

constexpr QSize rowSize{278, 20};

int resetValue(int) {
    return 0;
}

} // namespace

SliderRow::SliderRow(const SliderRowSetup& setup, QWidget* parent)
    : QWidget(parent), slider_(new ucSlider(sliderLowest, sliderHighest, this)) {
    setGeometry({setup.place, rowSize});
    QLabel* name = makeLabel(this, setup.caption, {0, 0, 62, 20}, TextRole::value);
    name->setFont(fontOf(TextRole::body));
    addButton(ButtonSign::minus, setup, {u"Minus"_s, u"Decrement by 5%"_s, 62}, decremented);
    slider_->setObjectName(setup.slider);
    slider_->setAccessibleName(setup.caption);
    slider_->setValue(0);
    slider_->setGeometry(87, 0, 100, 20);
    addButton(ButtonSign::plus, setup, {u"Plus"_s, u"Increment by 5%"_s, 192}, incremented);
    label_ = makeLabel(this, sliderLabel(0), {212, 0, 42, 20}, TextRole::number);
    label_->setFont(fontOf(TextRole::body));
    label_->setObjectName(setup.label);
    addButton(ButtonSign::reset, setup, {u"Reset"_s, u"Reset to zero"_s, 258}, resetValue);
    connect(slider_, &ucSlider::Change, this, [this] {
        label_->setText(sliderLabel(value()));
        Q_EMIT changed();
    });
}

void SliderRow::addButton(ButtonSign sign, const SliderRowSetup& setup, const ButtonPlace& place,
                          int (*next)(int)) {
    auto* button = new SignButton(sign, place.tip, this);
    button->setObjectName(u"cmd"_s + setup.slider.mid(2) + place.nameEnd);
    button->setAccessibleName(setup.caption + u": "_s + place.tip);
    button->setGeometry(place.left, 0, 20, 20);
    connect(button, &QPushButton::clicked, this, [this, next] { setValue(next(value())); });
}

int SliderRow::value() const {
    return slider_->value();
}

void SliderRow::setValue(int value) {
    setValue(value, sliderLabel(value));
}

void SliderRow::setValue(int value, const QString& label) {
    slider_->setValue(value);
    label_->setText(label); // the same value once more is no change, and yet the label may be another one
}

} // namespace morvane
