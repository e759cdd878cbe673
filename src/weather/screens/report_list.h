#pragma once

#include "weather/wx_finders.h"

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

/// The reports found.
class ReportList : public QTreeView {
    Q_OBJECT
public:
    explicit ReportList(QWidget* parent);

    void setReports(std::vector<clsWxFinders::Pointer> reports) { model_->setReports(std::move(reports)); }

Q_SIGNALS:
    /// The user clicked the report of that station or went to it by the keys.
    void stationChosen(const QString& icao);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose(const QModelIndex& index);

    ReportModel* model_;
};

} // namespace morvane
