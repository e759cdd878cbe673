#include "ui/controls/table_look.h"

#include "ui/controls/labels.h"
#include "ui/controls/paper_drawing.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace morvane {

namespace {

constexpr int headHeight = 22, rowHeight = 20;

class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(), rowHeight};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QColor colour = option->palette.color(QPalette::Text);
        option->palette.setColor(QPalette::HighlightedText, colour); // a selected row keeps its colour
    }
};

/// The list's head where it lies over the scroll bar.
class HeadEnd : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawListHead(painter, rect(), false);
    }
};

void setUpHead(QHeaderView& head) {
    head.setFixedHeight(headHeight);
    head.setFont(fontOf(TextRole::listHead));
    head.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    head.setSectionsClickable(true);
    head.setHighlightSections(false);
    head.setMinimumSectionSize(22);
    head.setSectionsMovable(false);
}

/// A list paints its rows anew when the focus comes or goes, but not its border, which shows it.
class BorderPainter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            static_cast<QWidget*>(watched)->update();
        return false;
    }
};

} // namespace

void giveTableLook(QTreeView& table) {
    table.setFont(fontOf(TextRole::body));
    table.setItemDelegate(new RowDelegate(&table));
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setRootIsDecorated(false);
    table.setIndentation(0);
    table.setUniformRowHeights(true);
    table.setAllColumnsShowFocus(true);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUpHead(*table.header());
    auto* headEnd = new HeadEnd(&table);
    headEnd->setFixedHeight(headHeight);
    table.addScrollBarWidget(headEnd, Qt::AlignTop);
    table.installEventFilter(new BorderPainter(&table));
}

} // namespace morvane
