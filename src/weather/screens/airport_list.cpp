#include "weather/screens/airport_list.h"

#include "core/literals.h"
#include "ui/controls/labels.h"
#include "ui/controls/table_look.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace morvane {

namespace {

/// Logical pixels; the last column takes what is left over.
constexpr int columnWidths[] = {42, 134, 72, 78, 88, 64};

} // namespace

AirportList::AirportList(QWidget* parent) : QTreeView(parent), model_(new AirportModel(this)) {
    setAccessibleName(u"Airports"_s);
    giveTableLook(*this);
    setFont(fontOf(TextRole::longHelp));
    setModel(model_);
    for (int column = 0; const int width : columnWidths)
        header()->resizeSection(column++, width);
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
