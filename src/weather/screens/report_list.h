#pragma once

#include "weather/reports.h"

#include <QAbstractListModel>
#include <QTreeView>
#include <vector>

namespace morvane {

/// Raw reports, one a row: thousands of them, and a row costs nothing until it is shown.
class ReportModel : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    void setReports(std::vector<clsWxFinders::Pointer> reports);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<clsWxFinders::Pointer> reports_;
};

/// The reports found; one of them is always chosen where there are any.
class ReportList : public QTreeView {
    Q_OBJECT
public:
    explicit ReportList(QWidget* parent);

    /// Shows these and chooses the first.
    void setReports(std::vector<clsWxFinders::Pointer> reports);

Q_SIGNALS:
    /// The report of that station is the one that stands selected now.
    void stationChosen(const QString& icao);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    ReportModel* model_;
};

} // namespace morvane
