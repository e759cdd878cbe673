#pragma once

#include "ui/form.h"

#include <QPixmap>

class QLabel;

namespace morvane {

class SkinnedProgressBar;

/// What is seen while the program starts: a picture, a line of text and a bar. It has no outline.
class frm_Splash : public Form {
    Q_OBJECT
public:
    explicit frm_Splash(Shell& shell);

    /// The line under the picture and the bar, 0 to 100.
    void showStep(const QString& text, double value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    QLabel* lblScanning_;
    SkinnedProgressBar* pbMetar_;
};

} // namespace morvane
