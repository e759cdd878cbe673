#pragma once

#include "ui/form.h"

#include <QPixmap>

namespace morvane {

/// The picture and the outline of a kind of window.
struct WindowLook {
    QString picture; ///< below "\Media"
    QString region;  ///< likewise
    QSize size;
    bool isPaper = true; ///< a dialog's, which is another one at night
};

extern const WindowLook mainLook, groundLook, skyLook, nightLook; ///< one outline for all four
extern const WindowLook messageLook, smallDialogLook, wideDialogLook, readyDialogLook, sheetLook;

/// The part of the picture that is not transparent, when it has been scaled to that size.
QRegion outlineOf(const QPixmap& picture, const QSize& size);

/// Cuts a window to an outline, and lets it be dragged by its background, as it has no title bar.
class clsTransForm {
public:
    explicit clsTransForm(QWidget& form) : form_(form) {}

    /// False, and the form as it was, when there is no outline to cut it to.
    bool ShapeMe(Skin& skin, const QString& regionFile);
    /// Gives the drag to the window system; where that takes none, `moveTo` does it.
    void DragForm(const QPoint& grabbedAt);
    void moveTo(const QPoint& pointer);
    void endDrag() { isDragging_ = false; }

private:
    QWidget& form_;
    QPoint offset_;
    bool isDragging_ = false;
};

/// A window of the skin: its background picture, cut to its outline. Without its files it is a plain window
/// with the system's frame.
class ShapedForm : public Form {
    Q_OBJECT
public:
    ShapedForm(Shell& shell, const QString& name, const WindowLook& look);

    /// Puts the middle of this window over the middle of that one, as far as the screen allows.
    void centreOver(const QWidget* other);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void keepOnScreen();
    void cutOutline();

    /// Null for a plain window.
    QPixmap background() const;

    QString picture_; ///< empty for a plain window
    bool isPaper_;
    qreal cutScale_ = 1; ///< that the outline was cut for
    clsTransForm shape_;
};

} // namespace morvane
