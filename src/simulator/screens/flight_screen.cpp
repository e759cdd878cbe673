#include "simulator/screens/flight_screen.h"

#include "core/session.h"
#include "simulator/flights.h"
#include "simulator/simulator_launch.h"
#include "ui/controls/set_table.h"

namespace morvane {

frm_flight::frm_flight(Shell& shell)
    : DialogForm(shell, u"frm_flight"_s, messageLook, u"Saved Flights"_s), lstFlights_(new SetTable(this)) {
    lstFlights_->setObjectName(u"lstFlights"_s);
    lstFlights_->setAccessibleName(u"Saved flights"_s);
    lstFlights_->setGeometry(26, 84, 348, 134);
    lstFlights_->setColumns({{u"Flight"_s, 330}});
    lstFlights_->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(lstFlights_, &SetTable::rowClicked, this,
            [this](const QString& name) { session().state<FlightChoice>().SelectedFlightName = name; });
    connect(lstFlights_, &SetTable::itemDoubleClicked, this, &frm_flight::ok);
    addAnswerKeys(u"Click to start the selected flight."_s, u"Click to cancel."_s);
}

/// The flight chosen last stands selected, else the first, so that OK starts what is seen.
void frm_flight::prepare() {
    lstFlights_->clearRows();
    const QStringList names = savedFlights(session());
    for (const QString& name : names)
        lstFlights_->addRow({name, {name}, {name}});
    QString& chosen = session().state<FlightChoice>().SelectedFlightName;
    if (!names.contains(chosen)) chosen = names.value(0);
    lstFlights_->selectRow(static_cast<int>(names.indexOf(chosen)) + 1);
    allowOk(!names.isEmpty());
    setFirstFocus(lstFlights_);
}

void frm_flight::confirm() {
    session().state<FlightChoice>().FlightSelected = true;
}

void frm_flight::cancel() {
    session().state<FlightChoice>().FlightSelected = false;
    DialogForm::cancel();
}

} // namespace morvane
