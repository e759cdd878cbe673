#pragma once

#include "sheets/sheet_drawing.h"
#include "ui/controls/picture_frame.h"

namespace morvane {

/// A texture cut by a line that can be dragged: the base left of it, the set's right of it.
class DividedPicture : public PictureFrame {
    Q_OBJECT
public:
    explicit DividedPicture(QWidget* parent);

    void setPair(const SheetPair& pair);
    /// The base alone, as long as it is wanted.
    void showBase(bool isWanted);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void moveTo(double part);
    void compose();

    SheetPair pair_;
    double part_ = 0.5; ///< of the width that is the base's
    bool showsBase_ = false;
};

} // namespace morvane
