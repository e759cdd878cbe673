#pragma once

#include "weather/screens/airport_model.h"

#include <QTreeView>

namespace morvane {

/// The airports found. A click on a head sorts by that column; each click turns the order round.
class AirportList : public QTreeView {
    Q_OBJECT
public:
    explicit AirportList(QWidget* parent);

    void setAirports(std::vector<Airport> airports) { model_->setAirports(std::move(airports)); }
    const AirportModel& airports() const { return *model_; }

Q_SIGNALS:
    /// The user clicked a row, went to it by the keys or pressed Enter on it; its texts are as shown.
    void airportChosen(const Airport& airport);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose(const QModelIndex& index);
    void sortBy(int column);

    AirportModel* model_;
    Qt::SortOrder order_ = Qt::DescendingOrder; ///< of the last sort; the first one is ascending
};

} // namespace morvane
