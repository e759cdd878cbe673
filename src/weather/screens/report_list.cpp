#include "weather/screens/report_list.h"

#include "core/literals.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/table_look.h"

#include <QColor>
#include <QHeaderView>

namespace morvane {

namespace {

constexpr int icaoRole = Qt::UserRole;

} // namespace

void ReportModel::setReports(std::vector<clsWxFinders::Pointer> reports) {
    beginResetModel();
    reports_ = std::move(reports);
    endResetModel();
}

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(reports_.size());
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    const clsWxFinder& finder = *reports_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return finder.WxFinderMetar;
    case icaoRole:
        return finder.WxFinderIcao;
    case Qt::ForegroundRole:
        return QColor::fromRgb(palette::now(paper::text));
    default:
        return {};
    }
}

QVariant ReportModel::headerData(int, Qt::Orientation, int role) const {
    return role == Qt::DisplayRole ? u"Metar"_s : QVariant();
}

ReportList::ReportList(QWidget* parent) : QTreeView(parent), model_(new ReportModel(this)) {
    setAccessibleName(u"Reports found"_s);
    giveTableLook(*this);
    setFont(fontOf(TextRole::longHelp));
    setModel(model_);
    header()->setSectionsClickable(false);
}

void ReportList::setReports(std::vector<clsWxFinders::Pointer> reports) {
    model_->setReports(std::move(reports));
    setCurrentIndex(model_->index(0, 0));
}

void ReportList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (current.isValid()) Q_EMIT stationChosen(current.data(icaoRole).toString());
}

} // namespace morvane
