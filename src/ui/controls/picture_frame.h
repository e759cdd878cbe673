#pragma once

#include <QImage>
#include <QWidget>

namespace morvane {

/// A picture in a frame. The picture fills its place whatever its own size; without one there is paper.
class PictureFrame : public QWidget {
    Q_OBJECT
public:
    explicit PictureFrame(QWidget* parent = nullptr);

    /// Where the picture itself lies in the parent, in logical pixels; frame and shadow go round it.
    void placePicture(const QRect& place);
    /// The same in the widget's own coordinates.
    QRect picturePlace() const;

    const QImage& picture() const { return picture_; }
    void setPicture(const QImage& picture);
    /// A small picture that is enlarged shows its pixels as squares when it is not smooth.
    void setSmooth(bool isSmooth);

Q_SIGNALS:
    void opened(); ///< by a double click, or by Enter where it has the keyboard

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const QImage& sizedPicture();
    void paintFrame(QPainter& painter) const;

    QImage picture_, sized_;
    bool isSmooth_ = true;
};

} // namespace morvane
