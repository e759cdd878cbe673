#include "weather/screens/filter_choice.h"

#include "core/literals.h"

#include <QAbstractListModel>
#include <QListView>

namespace morvane {

namespace {

/// Fourteen thousand cities are a list of texts; as items of their own they would keep a page from opening.
class FilterModel : public QAbstractListModel {
public:
    FilterModel(const QStringList& values, QObject* parent) : QAbstractListModel(parent), values_(values) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(values_.size()) + 1;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const bool isAny = index.row() == 0;
        if (role == Qt::DisplayRole) return isAny ? u"Any"_s : values_[index.row() - 1].toUpper();
        if (role == Qt::UserRole) return isAny ? QString() : values_[index.row() - 1];
        return {};
    }

private:
    const QStringList values_;
};

} // namespace

FilterChoice::FilterChoice(QWidget* parent) : QComboBox(parent) {
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon); // else it measures every text
    setValues({});
}

void FilterChoice::setValues(const QStringList& values) {
    setModel(new FilterModel(values, this)); // the box deletes the one before, as its child
    setCurrentIndex(0);
}

} // namespace morvane
