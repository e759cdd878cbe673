#include "weather/screens/airport_model.h"

#include "core/literals.h"
#include "weather/coordinates.h"

#include <algorithm>
#include <numeric>

namespace morvane {

namespace {

struct Column {
    const char16_t* head;
    QString Airport::*text;
    bool isNumber = false;
};

constexpr Column columns[] = {{u"ICAO", &Airport::icao},
                              {u"AirportName", &Airport::name},
                              {u"City", &Airport::city},
                              {u"State", &Airport::state},
                              {u"Country", &Airport::country},
                              {u"Latitude", &Airport::latitude, true},
                              {u"Longitude", &Airport::longitude, true}};

bool isBefore(const Airport& left, const Airport& right, const Column& column) {
    const QString &leftText = left.*column.text, &rightText = right.*column.text;
    if (column.isNumber) return storedDegrees(leftText).value_or(0) < storedDegrees(rightText).value_or(0);
    return leftText.compare(rightText, Qt::CaseInsensitive) < 0;
}

} // namespace

void AirportModel::setAirports(std::vector<Airport> airports) {
    beginResetModel();
    airports_ = std::move(airports);
    order_.resize(airports_.size());
    std::iota(order_.begin(), order_.end(), std::size_t{0});
    endResetModel();
}

Airport AirportModel::shownAirport(int row) const {
    Airport airport = airports_[order_[static_cast<std::size_t>(row)]];
    for (const Column& column : columns)
        airport.*column.text = (airport.*column.text).toUpper();
    return airport;
}

int AirportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int AirportModel::columnCount(const QModelIndex&) const {
    return static_cast<int>(std::size(columns));
}

QVariant AirportModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {}; // a narrow column cuts its text
    const Airport& airport = airports_[order_[static_cast<std::size_t>(index.row())]];
    return (airport.*columns[index.column()].text).toUpper();
}

QVariant AirportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return QString::fromUtf16(columns[section].head);
}

void AirportModel::sort(int column, Qt::SortOrder order) {
    Q_EMIT layoutAboutToBeChanged();
    const std::vector<std::size_t> before = order_;
    std::stable_sort(order_.begin(), order_.end(), [&](std::size_t left, std::size_t right) {
        if (order == Qt::DescendingOrder) std::swap(left, right);
        return isBefore(airports_[left], airports_[right], columns[column]);
    });
    std::vector<int> rowOf(order_.size());
    for (std::size_t row = 0; row < order_.size(); ++row)
        rowOf[order_[row]] = static_cast<int>(row);
    for (const QModelIndex& old : persistentIndexList())
        changePersistentIndex(old, index(rowOf[before[static_cast<std::size_t>(old.row())]], old.column()));
    Q_EMIT layoutChanged();
}

} // namespace morvane
