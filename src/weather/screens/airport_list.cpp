#include "weather/screens/airport_list.h"

#include "core/literals.h"
#include "ui/controls/labels.h"
#include "ui/controls/table_look.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace morvane {

namespace {

/// Logical pixels. The names take what is left over: they make room for the scroll bar.
constexpr int columnWidths[] = {44, 164, 66, 84, 92, 54, 62}, nameColumn = 1;

} // namespace

AirportList::AirportList(QWidget* parent) : QTreeView(parent), model_(new AirportModel(this)) {
    setAccessibleName(u"Airports"_s);
    giveTableLook(*this);
    setFont(fontOf(TextRole::longHelp));
    setModel(model_);
    for (int column = 0; const int width : columnWidths)
        header()->resizeSection(column++, width);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    connect(header(), &QHeaderView::sectionClicked, this, &AirportList::sortBy);
    connect(this, &QTreeView::clicked, this, &AirportList::choose);
}

void AirportList::choose(const QModelIndex& index) {
    if (index.isValid()) Q_EMIT airportChosen(model_->shownAirport(index.row()));
}

void AirportList::sortBy(int column) {
    order_ = order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    model_->sort(column, order_);
}

void AirportList::keyPressEvent(QKeyEvent* event) {
    const int before = currentIndex().row();
    QTreeView::keyPressEvent(event);
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter || currentIndex().row() != before) choose(currentIndex());
}

} // namespace morvane
