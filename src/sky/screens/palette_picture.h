#pragma once

#include "ui/controls/picture_frame.h"

namespace morvane {

/// A sky texture as a palette: each of its ten pixel groups can be pointed at and clicked, and one of them is
/// marked. The arrow keys go from group to group.
class PalettePicture : public PictureFrame {
    Q_OBJECT
public:
    explicit PalettePicture(QWidget* parent = nullptr);

    /// Marks the group of that number, 1 to 10.
    void setGroup(int number);

Q_SIGNALS:
    /// The place of a click on the picture, in logical pixels from its upper left corner.
    void clicked(float x, float y);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintMark(QPainter& painter) const;

    int group_ = 1;
};

} // namespace morvane
