#pragma once

#include <QWidget>

class QLabel;

namespace morvane {

/// The small window that floats beside a slider's thumb and shows the value. It is on top of all and never
/// takes the focus.
class ucSliderTip : public QWidget {
    Q_OBJECT
public:
    explicit ucSliderTip(QWidget* slider);

    /// Writes the value and sizes the window to it.
    void setValue(int value);
    /// Shows the tip above a thumb at that place on the screen.
    void showAbove(const QRect& thumb);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* lblTip;
};

} // namespace morvane
