#include "sheets/screens/sheet_view.h"

#include "ui/controls/palette.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace morvane {

namespace {

constexpr int lineStep = 30;

SheetColours paperColours() {
    return sheetColours(palette::inUse());
}

} // namespace

SheetView::SheetView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(lineStep);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

void SheetView::setLoading(SheetLoading* loading) {
    loading_ = loading;
    open_.clear();
    look_ = {};
    if (!loading) return;
    open_.resize(loading->sheet().rows.size());
    connect(loading, &SheetLoading::arrived, this, [this](std::size_t texture) {
        viewport()->update(
            layout_.place(texture).translated(0, SheetLayout::headHeight - verticalScrollBar()->value()));
    });
    if (!loading->sheet().textures.empty()) look_.picked = 0;
    verticalScrollBar()->setValue(0);
    layOut();
    showPicked();
}

void SheetView::setZoom(int zoom) {
    measures_.zoom = zoom;
    layOut();
    if (look_.picked) showPicked();
}

void SheetView::setCut(bool isCut) {
    look_.isCut = isCut;
    viewport()->update();
}

void SheetView::showBase(bool isWanted) {
    look_.showsBase = isWanted;
    viewport()->update();
}

void SheetView::layOut() {
    if (!loading_) return;
    layout_ = SheetLayout(loading_->sheet(), measures_, open_);
    const int seen = viewport()->height() - SheetLayout::headHeight;
    verticalScrollBar()->setPageStep(seen);
    verticalScrollBar()->setRange(0, std::max(0, layout_.size().height() - seen));
    viewport()->update();
    askForSeen();
}

QRect SheetView::seenPart() const {
    return {0, verticalScrollBar()->value(), viewport()->width(),
            viewport()->height() - SheetLayout::headHeight};
}

void SheetView::askForSeen() {
    if (loading_) loading_->see(layout_.texturesIn(seenPart()), qRound(measures_.zoom * devicePixelRatioF()));
}

void SheetView::pick(std::size_t texture) {
    if (!loading_ || look_.picked == texture) return;
    look_.picked = texture;
    showPicked();
}

/// A row that was closed may have the picked one in it: it goes on being picked, unseen.
void SheetView::showPicked() {
    viewport()->update();
    const QRect place = look_.picked ? layout_.place(*look_.picked) : QRect();
    if (!place.isNull()) {
        QScrollBar& bar = *verticalScrollBar();
        const QRect wanted = place.adjusted(0, -SheetLayout::insetY, 0, SheetLayout::insetY);
        if (wanted.bottom() > seenPart().bottom())
            bar.setValue(bar.value() + wanted.bottom() - seenPart().bottom());
        if (wanted.top() < seenPart().top()) bar.setValue(wanted.top());
    }
    if (look_.picked) {
        const SheetTexture& texture = loading_->sheet().textures[*look_.picked];
        setAccessibleDescription(texture.name + u", "_s + loading_->sheet().placeOf(texture));
        QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&changed);
    }
    Q_EMIT pickChanged();
}

bool SheetView::pickNext(int right, int down) {
    if (!loading_ || !look_.picked || layout_.place(*look_.picked).isNull()) return false;
    const auto next = layout_.neighbour(*look_.picked, right, down);
    if (next) pick(*next);
    return next.has_value();
}

QPoint SheetView::middleOf(std::size_t texture) const {
    const QPoint middle = layout_.place(texture).center();
    return viewport()->mapTo(this,
                             middle + QPoint(0, SheetLayout::headHeight - verticalScrollBar()->value()));
}

void SheetView::turnRow(std::size_t row) {
    open_[row] = !open_[row];
    layOut();
}

QPoint SheetView::inSheet(const QPointF& point) const {
    return point.toPoint() + QPoint(0, verticalScrollBar()->value() - SheetLayout::headHeight);
}

std::optional<std::size_t> SheetView::rowOpenedAt(const QPoint& point) const {
    for (std::size_t row = 0; row < open_.size(); ++row)
        if (layout_.openerPlace(row).contains(point)) return row;
    return std::nullopt;
}

void SheetView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor::fromRgb(paperColours().ground));
    if (!loading_) return;
    const int top = verticalScrollBar()->value();
    painter.setClipRect(viewport()->rect()); // a window that is drawn into a picture does not clip its parts
    painter.save();
    painter.translate(0, SheetLayout::headHeight - top);
    paintSheetRows(
        painter, loading_->sheet(), layout_, seenPart(), look_,
        [this](std::size_t texture) { return loading_->pair(texture); }, paperColours());
    painter.restore();
    paintSheetHead(painter, loading_->sheet(), layout_, viewport()->width(), paperColours());
}

void SheetView::resizeEvent(QResizeEvent*) {
    layOut();
}

void SheetView::scrollContentsBy(int, int) {
    viewport()->update();
    askForSeen();
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || event->position().y() < SheetLayout::headHeight) return;
    const QPoint point = inSheet(event->position());
    if (const auto texture = layout_.textureAt(point))
        pick(*texture);
    else if (const auto row = rowOpenedAt(point))
        turnRow(*row);
}

void SheetView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (event->position().y() >= SheetLayout::headHeight && layout_.textureAt(inSheet(event->position())))
        Q_EMIT opened();
}

void SheetView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        pickNext(event->key() == Qt::Key_Left ? -1 : 1, 0);
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        pickNext(0, event->key() == Qt::Key_Up ? -1 : 1);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const int way = event->key() == Qt::Key_PageUp ? -1 : 1;
        verticalScrollBar()->setValue(verticalScrollBar()->value() + way * verticalScrollBar()->pageStep());
        break;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (look_.picked) Q_EMIT opened();
        break;
    case Qt::Key_A: // "All", and "Fewer"
        if (look_.picked) turnRow(loading_->sheet().textures[*look_.picked].row);
        break;
    default:
        event->ignore(); // Space and Escape are the dialog's
    }
}

} // namespace morvane
