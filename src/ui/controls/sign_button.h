#pragma once

#include <QPushButton>

namespace morvane {

enum class ButtonSign { minus, plus, reset };

/// A plain button of 20 x 20 with a drawn sign in place of a text: the three beside every slider.
class SignButton : public QPushButton {
    Q_OBJECT
public:
    /// The tip is its accessible name too.
    SignButton(ButtonSign sign, const QString& tip, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {20, 20}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ButtonSign sign_;
};

} // namespace morvane
