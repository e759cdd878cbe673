#pragma once

#include "sheets/sheet_pictures.h"

#include <QWidget>

namespace morvane {

/// One texture alone: base and set side by side, at full size where there is room for it.
class SingleTexture : public QWidget {
    Q_OBJECT
public:
    explicit SingleTexture(QWidget* parent);

    void setCaptions(const QString& base, const QString& own);
    void setPair(const QString& name, const SheetPair& pair);
    void showBase(bool isWanted);

Q_SIGNALS:
    void left(); ///< the others are wanted again

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString baseCaption_, ownCaption_, name_;
    SheetPair pair_;
    bool showsBase_ = false;
};

} // namespace morvane
