#pragma once

#include "weather/screens/cover_dialog.h"
#include "weather/screens/cover_label.h"

namespace morvane {

/// The cloud cover between the two airports that were chosen on the weather page.
class frm_FromDepDestVal : public CoverDialog {
    Q_OBJECT
public:
    explicit frm_FromDepDestVal(Shell& shell);

protected:
    void prepare() override;

private:
    /// The labels of one end of the flight.
    struct End {
        QLabel *icao, *airport, *city, *metar;
    };
    /// `prefix` is "lblDep" or "lblDest".
    End addEnd(const QString& prefix, const QString& heading, int column);
    void popAirportValues();

    End departure_, destination_;
    CoverLabel average_;
};

} // namespace morvane
