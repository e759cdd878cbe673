#include "simulator/screens/weather_sources_panel.h"

#include "core/failure_report.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/controls/set_table.h"
#include "weather/weather_download.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace morvane {

namespace {

/// How a server of the pilot's own can write its reports.
constexpr std::pair<const char16_t*, CycleForm> ownForms[] = {
    {u"Own server: cycle files", CycleForm::noaa},
    {u"Own server: one table", CycleForm::awc},
    {u"Own server: plain cycle files", CycleForm::plain}};

QString stateOf(const Session& session, const WeatherSource& source) {
    try {
        return stateText(source, noteOf(session, source.address), session.clock.utcTime());
    } catch (const Error& error) {
        return error.description();
    }
}

} // namespace

WeatherSourcesPanel::WeatherSourcesPanel(Session& session, const QRect& place, QWidget* parent)
    : QWidget(parent), session_(session), lstSources_(new SetTable(this)) {
    setGeometry(place);
    lstSources_->setObjectName(u"lstSources"_s);
    lstSources_->setAccessibleName(u"Weather sources"_s);
    lstSources_->setGeometry(0, 0, 522, 108);
    lstSources_->setColumns({{u"Source"_s, 96}, {u"What"_s, 124}, {u"State"_s, 300}});
    lstSources_->setSelectionMode(QAbstractItemView::SingleSelection);
    lstSources_->header()->setSectionsClickable(false); // their order is what they are asked in
    connect(lstSources_, &SetTable::rowClicked, this, &WeatherSourcesPanel::showChosen);
    cmdUp_ = addButton(u"cmdSourceUp"_s, u"Up"_s, u"Click to ask this source earlier."_s, {532, 0, 116, 26});
    cmdDown_ =
        addButton(u"cmdSourceDown"_s, u"Down"_s, u"Click to ask this source later."_s, {532, 32, 116, 26});
    cmdRemove_ = addButton(u"cmdSourceRemove"_s, u"Remove"_s, u"Click to ask this source no more."_s,
                           {532, 64, 116, 26});
    connect(cmdUp_, &QPushButton::clicked, this, [this] { move(-1); });
    connect(cmdDown_, &QPushButton::clicked, this, [this] { move(1); });
    connect(cmdRemove_, &QPushButton::clicked, this, &WeatherSourcesPanel::remove);
    lblSourceState_ = makeLabel(this, {}, {0, 112, 648, 16}, TextRole::longHelp);
    lblSourceState_->setObjectName(u"lblSourceState"_s);
    addNewSource();
}

QPushButton* WeatherSourcesPanel::addButton(const QString& name, const QString& caption, const QString& tip,
                                            const QRect& place) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setGeometry(place);
    return button;
}

void WeatherSourcesPanel::addNewSource() {
    cboNewSource_ = new QComboBox(this);
    cboNewSource_->setObjectName(u"cboNewSource"_s);
    cboNewSource_->setAccessibleName(u"Source to add"_s);
    cboNewSource_->setGeometry(0, 132, 196, 22);
    connect(cboNewSource_, &QComboBox::currentIndexChanged, this, &WeatherSourcesPanel::showChoice);
    txtOwnServer_ = new QLineEdit(this);
    txtOwnServer_->setObjectName(u"txtOwnServer"_s);
    txtOwnServer_->setAccessibleName(u"Address of your own server"_s);
    txtOwnServer_->setPlaceholderText(u"https://host/reports/"_s);
    txtOwnServer_->setGeometry(206, 132, 316, 22);
    cmdAdd_ = addButton(u"cmdSourceAdd"_s, u"Add"_s, u"Click to add this source."_s, {532, 130, 116, 26});
    connect(cmdAdd_, &QPushButton::clicked, this, &WeatherSourcesPanel::add);
}

void WeatherSourcesPanel::refresh() {
    fillList();
    fillChoice();
    pick(1);
}

void WeatherSourcesPanel::fillList() {
    sources_ = weatherSources(session_.registry);
    lstSources_->clearRows();
    for (const WeatherSource& source : sources_) {
        const QStringList texts{source.name, source.text().mid(source.name.size() + 2),
                                stateOf(session_, source)};
        lstSources_->addRow({source.name, texts, texts});
    }
}

/// Those that are not in the list, and a server of the pilot's own where he has none.
void WeatherSourcesPanel::fillChoice() {
    cboNewSource_->clear();
    const QStringList names = weatherSourceNames(session_.registry);
    for (const QString& name : deliveredSourceNames())
        if (!names.contains(name)) cboNewSource_->addItem(name, name);
    if (std::ranges::none_of(sources_, &WeatherSource::isOwn))
        for (const auto& [caption, form] : ownForms)
            cboNewSource_->addItem(QString::fromUtf16(caption), static_cast<int>(form));
    showChoice();
}

void WeatherSourcesPanel::pick(int row) {
    lstSources_->selectRow(row);
    showChosen();
}

const WeatherSource* WeatherSourcesPanel::chosen() const {
    const auto row = static_cast<std::size_t>(lstSources_->currentIndex().row());
    return row < sources_.size() ? &sources_[row] : nullptr;
}

void WeatherSourcesPanel::showChosen() {
    const WeatherSource* source = chosen();
    const QStringList names = weatherSourceNames(session_.registry);
    const bool isNamed = source && !source->isOwn;
    cmdUp_->setEnabled(isNamed && source->name != names.first());
    cmdDown_->setEnabled(isNamed && source->name != names.last());
    cmdRemove_->setEnabled(source != nullptr);
    const QString state = source ? source->address.toDisplayString() + u", "_s + stateOf(session_, *source)
                                 : u"Reports come from no server."_s;
    lblSourceState_->setText(
        lblSourceState_->fontMetrics().elidedText(state, Qt::ElideRight, lblSourceState_->width()));
    lblSourceState_->setAccessibleName(state);
}

void WeatherSourcesPanel::showChoice() {
    const QVariant choice = cboNewSource_->currentData();
    txtOwnServer_->setVisible(choice.typeId() == QMetaType::Int);
    cmdAdd_->setEnabled(choice.isValid());
    cboNewSource_->setEnabled(choice.isValid());
}

void WeatherSourcesPanel::move(int steps) {
    const WeatherSource* source = chosen();
    if (!source) return;
    QStringList names = weatherSourceNames(session_.registry);
    const qsizetype from = names.indexOf(source->name), to = from + steps;
    if (from < 0 || to < 0 || to >= names.size()) return;
    names.move(from, to);
    const int row = lstSources_->currentIndex().row() + 1 + steps;
    storeWeatherSourceNames(session_.registry, names);
    fillList();
    pick(row);
}

void WeatherSourcesPanel::remove() {
    const WeatherSource* source = chosen();
    if (!source) return;
    const int row = lstSources_->currentIndex().row() + 1;
    QStringList names = weatherSourceNames(session_.registry);
    if (source->isOwn) {
        storeOwnWeatherServer(session_.registry, {}, {});
    } else {
        names.removeOne(source->name);
        storeWeatherSourceNames(session_.registry, names);
    }
    fillList();
    fillChoice();
    pick(std::min(row, lstSources_->rowCount()));
}

void WeatherSourcesPanel::add() {
    const QVariant choice = cboNewSource_->currentData();
    if (choice.typeId() == QMetaType::Int) {
        const QString problem = storeOwnWeatherServer(session_.registry, txtOwnServer_->text(),
                                                      static_cast<CycleForm>(choice.toInt()));
        if (!problem.isEmpty()) return showFailure(session_.user, morvaneError, problem);
        txtOwnServer_->clear();
    } else {
        storeWeatherSourceNames(session_.registry, weatherSourceNames(session_.registry)
                                                       << choice.toString());
    }
    const bool isOwn = choice.typeId() == QMetaType::Int;
    fillList();
    fillChoice();
    pick(isOwn ? 1 : lstSources_->rowCount());
}

} // namespace morvane
