#pragma once

#include "sheets/screens/sheet_loading.h"
#include "sheets/sheet_drawing.h"

#include <QAbstractScrollArea>
#include <QPointer>

namespace morvane {

/// The rows of a sheet: textures to be looked at and picked.
class SheetView : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit SheetView(QWidget* parent);

    /// Shows that sheet from its top, with the first texture picked; null for none. It has to outlive the
    /// view's next sheet.
    void setLoading(SheetLoading* loading);
    int zoom() const { return measures_.zoom; }
    void setZoom(int zoom);
    bool isCut() const { return look_.isCut; }
    void setCut(bool isCut);
    void showBase(bool isWanted);
    std::optional<std::size_t> picked() const { return look_.picked; }
    void pick(std::size_t texture);
    /// To the next one; false at the edge.
    bool pickNext(int right, int down);
    /// Of a texture that is shown, where it lies in the view.
    QPoint middleOf(std::size_t texture) const;
    /// Opens the row, or closes it again.
    void turnRow(std::size_t row);

Q_SIGNALS:
    void pickChanged();
    void opened(); ///< the picked one is wanted alone

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int right, int down) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void askForSeen();
    void showPicked();
    QPoint inSheet(const QPointF& point) const;
    QRect seenPart() const;
    std::optional<std::size_t> rowOpenedAt(const QPoint& point) const;

    QPointer<SheetLoading> loading_;
    SheetMeasures measures_;
    SheetLayout layout_;
    std::vector<bool> open_;
    SheetLook look_;
};

} // namespace morvane
