#pragma once

#include "weather/airport_data.h"

#include <QAbstractTableModel>
#include <vector>

namespace morvane {

/// Airports as a table, their texts in upper case. There are twenty thousand of them, and a row costs nothing
/// until it is shown.
class AirportModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setAirports(std::vector<Airport> airports);
    /// The airport of that row with its texts as they are shown.
    Airport shownAirport(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// By the text without regard to case; a position by its degrees.
    void sort(int column, Qt::SortOrder order) override;

private:
    std::vector<Airport> airports_;
    std::vector<std::size_t> order_; ///< of each row, its place in `airports_`
};

} // namespace morvane
