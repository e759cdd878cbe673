#include "ui/controls/set_table.h"

#include "core/literals.h"
#include "ui/controls/table_look.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace morvane {

namespace {

constexpr int keyRole = Qt::UserRole, colourRole = Qt::UserRole + 1;

/// Sorts without regard to case, as a reader expects of names.
class Row : public QTreeWidgetItem {
public:
    /// Asked for at each painting, as it goes by the palette.
    QVariant data(int column, int role) const override {
        if (role != Qt::ForegroundRole) return QTreeWidgetItem::data(column, role);
        return QColor::fromRgb(paintedColour(QTreeWidgetItem::data(0, colourRole).toUInt()));
    }
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget() ? treeWidget()->sortColumn() : 0;
        return text(column).compare(other.text(column), Qt::CaseInsensitive) < 0;
    }
};

/// In the order shown.
template <typename Predicate>
QStringList namesWhere(const QTreeWidget& table, Predicate isWanted) {
    QStringList names;
    for (int index = 0; index < table.topLevelItemCount(); ++index)
        if (isWanted(*table.topLevelItem(index))) names += table.topLevelItem(index)->text(0);
    return names;
}

bool isListKey(const QKeyEvent& event) {
    constexpr int keys[] = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home, Qt::Key_End,
                            Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    return std::ranges::find(keys, event.key()) != std::end(keys) || event.matches(QKeySequence::SelectAll);
}

} // namespace

QRgb paintedColour(QRgb stored) {
    if (stored == qRgb(255, 0, 0)) return palette::now(paper::signalRed);
    if (stored == qRgb(0, 0, 255) || stored == paper::text.day) return palette::now(paper::text);
    return stored;
}

SetTable::SetTable(QWidget* parent) : QTreeWidget(parent) {
    setAccessibleName(u"Texture sets"_s);
    setSelectionMode(ExtendedSelection);
    giveTableLook(*this);
    connect(header(), &QHeaderView::sectionClicked, this, &SetTable::sortBy);
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem*, int column) {
        if (column == 0) Q_EMIT checksChanged();
    });
    // A click on a row's check box checks it and goes nowhere, so it tells nothing of that row.
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) {
        if (item == currentItem()) tellOfCurrent();
    });
}

void SetTable::tellOfCurrent() {
    Q_EMIT rowClicked(currentItem()->data(0, keyRole).toString());
}

void SetTable::setColumns(const std::vector<SetColumn>& columns, bool hasCheckBoxes) {
    hasCheckBoxes_ = hasCheckBoxes;
    QStringList titles;
    for (const SetColumn& column : columns)
        titles += column.title;
    setColumnCount(static_cast<int>(titles.size()));
    setHeaderLabels(titles);
    for (int index = 0; const SetColumn& column : columns) {
        headerItem()->setToolTip(index, column.title); // a narrow column cuts it
        header()->resizeSection(index++, column.width);
    }
}

void SetTable::addRow(const SetRow& row) {
    auto* item = new Row;
    item->setData(0, keyRole, row.key);
    item->setData(0, colourRole, row.colour);
    if (hasCheckBoxes_) item->setCheckState(0, row.isChecked ? Qt::Checked : Qt::Unchecked);
    for (int column = 0; column < columnCount(); ++column) {
        item->setText(column, row.texts.value(column));
        item->setToolTip(column, row.tips.value(column));
    }
    addTopLevelItem(item);
}

QString SetTable::keyOf(int row) const {
    const QTreeWidgetItem* item = topLevelItem(row - 1);
    return item ? item->data(0, keyRole).toString() : QString();
}

QString SetTable::textOf(int row, int column) const {
    const QTreeWidgetItem* item = topLevelItem(row - 1);
    return item ? item->text(column) : QString();
}

int SetTable::rowOf(const QString& name) const {
    for (int row = 1; row <= rowCount(); ++row)
        if (textOf(row, 0) == name) return row;
    return 0;
}

QRgb SetTable::storedColour(int row) const {
    const QTreeWidgetItem* item = topLevelItem(row - 1);
    return item ? item->data(0, colourRole).toUInt() : paper::text.day;
}

void SetTable::selectRow(int row) {
    QTreeWidgetItem* item = topLevelItem(row - 1);
    if (!item) return;
    setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollToItem(item);
}

void SetTable::selectName(const QString& name) {
    if (const int row = rowOf(name)) topLevelItem(row - 1)->setSelected(true);
}

QStringList SetTable::selectedNames() const {
    return namesWhere(*this, [](const QTreeWidgetItem& item) { return item.isSelected(); });
}

QStringList SetTable::checkedNames() const {
    return namesWhere(*this, [](const QTreeWidgetItem& item) { return item.checkState(0) == Qt::Checked; });
}

QStringList SetTable::checkedKeys() const {
    QStringList keys;
    for (int row = 1; row <= rowCount(); ++row)
        if (topLevelItem(row - 1)->checkState(0) == Qt::Checked) keys << keyOf(row);
    return keys;
}

void SetTable::checkAll(bool isChecked) {
    for (int row = 0; row < rowCount(); ++row)
        topLevelItem(row)->setCheckState(0, isChecked ? Qt::Checked : Qt::Unchecked);
}

/// Each click turns the order round, whichever head it is on.
void SetTable::sortBy(int column) {
    order_ = order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    const bool isOfBoxes = column == 0 && headerItem()->text(0).isEmpty();
    sortItems(isOfBoxes ? 1 : column, order_);
}

bool SetTable::isOnCheckBox(const QPoint& place) const {
    const QModelIndex index = indexAt(place);
    if (!hasCheckBoxes_ || index.column() != 0) return false;
    QStyleOptionViewItem cell;
    initViewItemOption(&cell);
    cell.features |= QStyleOptionViewItem::HasCheckIndicator;
    cell.rect = visualRect(index);
    return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, this).contains(place);
}

/// With a key held several rows are being picked.
void SetTable::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    isDoubleClick_ = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
                     itemAt(place) && !isOnCheckBox(place);
    QTreeWidget::mouseDoubleClickEvent(event);
}

/// A key of the list that leads nowhere, as on its only row, is a choice of the row it stays on.
void SetTable::keyPressEvent(QKeyEvent* event) {
    const QTreeWidgetItem* before = currentItem();
    QTreeWidget::keyPressEvent(event);
    if (currentItem() && (currentItem() != before || isListKey(*event))) tellOfCurrent();
}

void SetTable::mousePressEvent(QMouseEvent* event) {
    pressed_ = itemAt(event->position().toPoint());
    QTreeWidget::mousePressEvent(event);
}

/// A drag over rows selects them without a click. What follows a double click may open a window, which would
/// keep the release from the list.
void SetTable::mouseReleaseEvent(QMouseEvent* event) {
    const bool isDrag = pressed_ && itemAt(event->position().toPoint()) != pressed_;
    QTreeWidget::mouseReleaseEvent(event);
    if (isDrag && currentItem() && currentItem() != pressed_) tellOfCurrent();
    pressed_ = nullptr;
    if (std::exchange(isDoubleClick_, false)) Q_EMIT rowDoubleClicked();
}

} // namespace morvane
