#include "weather/screens/flight_plan_screen.h"

#include "core/failure_report.h"
#include "core/flights_folder.h"
#include "core/session.h"
#include "sets/cloud_cover.h"
#include "ui/controls/labels.h"
#include "ui/controls/set_table.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/skin.h"
#include "weather/cover_choice.h"
#include "weather/flight_plan.h"

#include <QKeyEvent>

namespace morvane {

namespace {

constexpr QRect plansPlace{26, 106, 178, 308}, waypointsPlace{218, 168, 456, 196};
constexpr int planLeft = 218, cloudColumn = 5, discRole = Qt::UserRole + 2;

/// The small pictures of the classes 1 to 5.
QString iconFile(std::int16_t icon) {
    static const QStringList names{u"skc"_s, u"few"_s, u"sct"_s, u"bkn"_s, u"ovc"_s};
    return u"cover_"_s + names[icon - 1] + u".bmp"_s;
}

} // namespace

frm_FlightPlan::frm_FlightPlan(Shell& shell)
    : CoverDialog(shell, u"frm_FlightPlan"_s, wideDialogLook, u"Import Flight Simulator Flight Plan"_s),
      cover_(*this, {u"picCloudCover"_s, u"lblCloudCover"_s}, {planLeft + 110, 372}, 240) {
    addPlans();
    lblDepVal_ = addHeading(u"From:"_s, u"lblDepVal"_s, 0);
    lblDestVal_ = addHeading(u"To:"_s, u"lblDestVal"_s, 1);
    lblAltVal_ = addHeading(u"Cruise Altitude:"_s, u"lblAltVal"_s, 2);
    addWaypoints();
    makeLabel(this, u"Average Cloud:"_s, {planLeft, 372, 100, CoverLabel::side}, TextRole::fieldCaption);
    lblProgress_ = makeLabel(this, u"Morvane is now processing your Flight Plan.  Please wait..........."_s,
                             {26, height() - 62, 440, 16}, TextRole::darkBody);
    pbFlightPlan_ = new SkinnedProgressBar(this);
    pbFlightPlan_->setObjectName(u"pbFlightPlan"_s);
    pbFlightPlan_->setGeometry(26, height() - 40, 440, 16);
    addAnswerKeys(u"Click to select current flight plan"_s,
                  u"Click to cancel and return to the Select Cloud Cover Method Screen."_s);
}

void frm_FlightPlan::addPlans() {
    makeLabel(this, u"Double click on Flight Plan to select"_s, {26, 86, 190, 16}, TextRole::fieldCaption);
    lvwFPList_ = new SetTable(this);
    lvwFPList_->setObjectName(u"lvwFPList"_s);
    lvwFPList_->setAccessibleName(u"Flight plans"_s);
    lvwFPList_->setGeometry(plansPlace);
    lvwFPList_->setColumns({{u"FlightPlan"_s, plansPlace.width() - 14}});
    lvwFPList_->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(lvwFPList_, &SetTable::rowClicked, this, [this](const QString& name) {
        if (name != openPlan_) allowOk(true);
    });
    connect(lvwFPList_, &SetTable::itemDoubleClicked, this, &frm_FlightPlan::openPlan);
    lblNoFlightPlans_ = makeLabel(this, {}, plansPlace, TextRole::body);
    lblNoFlightPlans_->setObjectName(u"lblNoFlightPlans"_s);
}

void frm_FlightPlan::addWaypoints() {
    lvwFlightPlan_ = new SetTable(this);
    lvwFlightPlan_->setObjectName(u"lvwFlightPlan"_s);
    lvwFlightPlan_->setAccessibleName(u"Waypoints"_s);
    lvwFlightPlan_->setGeometry(waypointsPlace);
    lvwFlightPlan_->setFont(fontOf(TextRole::longHelp));
    lvwFlightPlan_->setIconSize({12, 12});
    lvwFlightPlan_->setColumns({{u"Name"_s, 68},
                                {u"Type"_s, 96},
                                {u"Lat"_s, 84},
                                {u"Long"_s, 88},
                                {u"Airway"_s, 56},
                                {u"Cloud"_s, 48}});
    lblNoWaypoints_ = makeLabel(this, u"This flight plan has no waypoints"_s, waypointsPlace, TextRole::body);
    lblNoWaypoints_->setObjectName(u"lblNoWaypoints"_s);
}

QLabel* frm_FlightPlan::addHeading(const QString& caption, const QString& name, int row) {
    const int top = 88 + 24 * row;
    makeLabel(this, caption, {planLeft, top, 100, 16}, TextRole::fieldCaption);
    QLabel* value = makeLabel(this, {}, {planLeft + 110, top, 346, 16}, TextRole::value);
    value->setObjectName(name);
    return value;
}

void frm_FlightPlan::prepare() {
    clearPlan();
    lvwFPList_->clearRows();
    const FilePath& chosen = session().state<CoverChoice>().planFile;
    QStringList names;
    reportFailures(session().user, morvaneError, [&] {
        folder_ = chosen.isEmpty() ? userFlightsFolder(session()) : chosen.parent();
        names = chosen.isEmpty() ? flightPlanNames(session(), folder_) : QStringList{chosen.fileName()};
    });
    for (const QString& name : names)
        lvwFPList_->addRow({name, {name}, {name}});
    lvwFPList_->setVisible(!names.isEmpty());
    lblNoFlightPlans_->setText(names.isEmpty() ? u"No flight plans have been detected.  You need to have FS9 "
                                                 "flight plans (.pln) to use this functionality."_s
                                               : QString());
    lvwFPList_->selectRow(1);
    setFirstFocus(lvwFPList_);
    allowOk(!names.isEmpty());
    if (!chosen.isEmpty()) openPlan();
}

void frm_FlightPlan::clearPlan() {
    lvwFlightPlan_->clearRows();
    lvwFlightPlan_->show();
    for (QLabel* value : {lblDepVal_, lblDestVal_, lblAltVal_})
        value->clear();
    for (QWidget* hidden : {static_cast<QWidget*>(lblNoWaypoints_), static_cast<QWidget*>(lblProgress_),
                            static_cast<QWidget*>(pbFlightPlan_)})
        hidden->hide();
    cover_.clear();
    openPlan_.clear();
    allowOk(false);
}

QString frm_FlightPlan::selectedPlan() const {
    return lvwFPList_->selectedNames().value(0);
}

void frm_FlightPlan::openPlan() {
    const QString selected = selectedPlan();
    if (selected.isEmpty()) return;
    clearPlan();
    openPlan_ = selected;
    setEnabled(false); // a click meanwhile would open a plan inside this one
    reportFailures(session().user, morvaneError, [&] { readFlightPlan(selected); });
    setEnabled(true);
    lvwFPList_->setFocus();
    allowOk(lvwFlightPlan_->rowCount() > 0);
}

void frm_FlightPlan::readFlightPlan(const QString& name) {
    if (const auto plan = morvane::readFlightPlan(session(), folder_.child(name))) processFlightPlan(*plan);
}

void frm_FlightPlan::processFlightPlan(const FlightPlan& plan) {
    lblDepVal_->setText(plan.departure);
    lblDestVal_->setText(plan.destination);
    lblAltVal_->setText(plan.altitude);
    lvwFlightPlan_->setVisible(!plan.waypoints.empty());
    lblNoWaypoints_->setVisible(plan.waypoints.empty());
    lblProgress_->show();
    pbFlightPlan_->show();
    const PlanWeather weather = morvane::processFlightPlan(session(), plan, [this](double value) {
        pbFlightPlan_->setValue(value);
        session().user.pumpMessages();
    });
    lblProgress_->hide();
    pbFlightPlan_->hide();
    for (const Waypoint& waypoint : weather.waypoints)
        addWaypoint(waypoint);
    if (weather.coverClass == 0) return;
    session().state<CoverChoice>().cloudClass = weather.coverClass;
    cover_.showCover(weather.coverClass);
}

void frm_FlightPlan::addWaypoint(const Waypoint& waypoint) {
    const std::int16_t icon = getCloudIcon(waypoint.cloudClass);
    const QString cloud = coverOfClass(icon).caption;
    const QStringList texts{waypoint.name, waypoint.type, waypoint.latitude, waypoint.longitude,
                            waypoint.airway};
    lvwFlightPlan_->addRow({waypoint.name, texts, texts + QStringList{cloud}});
    QTreeWidgetItem* item = lvwFlightPlan_->topLevelItem(lvwFlightPlan_->rowCount() - 1);
    item->setData(cloudColumn, discRole, iconFile(icon));
    showDisc(*item);
    item->setData(cloudColumn, Qt::AccessibleTextRole, cloud);
}

void frm_FlightPlan::showDisc(QTreeWidgetItem& waypoint) {
    waypoint.setIcon(cloudColumn, skin().sign(waypoint.data(cloudColumn, discRole).toString()));
}

void frm_FlightPlan::changeEvent(QEvent* event) {
    CoverDialog::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    for (int row = 0; row < lvwFlightPlan_->rowCount(); ++row)
        showDisc(*lvwFlightPlan_->topLevelItem(row));
}

void frm_FlightPlan::ok() {
    if (isOkAllowed() && openPlan_ != selectedPlan()) openPlan();
    CoverDialog::ok();
}

void frm_FlightPlan::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && lvwFPList_->hasFocus() && openPlan_ != selectedPlan())
        openPlan();
    else
        CoverDialog::keyPressEvent(event);
}

} // namespace morvane
