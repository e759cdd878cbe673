#pragma once

#include "core/file_path.h"
#include "weather/screens/cover_dialog.h"
#include "weather/screens/cover_label.h"

class QTreeWidgetItem;

namespace morvane {

class SetTable;
class SkinnedProgressBar;
struct FlightPlan;
struct Waypoint;

/// The cloud cover along a flight plan: the plans found, the way of the one that was opened and its weather.
class frm_FlightPlan : public CoverDialog {
    Q_OBJECT
public:
    explicit frm_FlightPlan(Shell& shell);

    /// Takes the cover of the plan that is selected, which is read first where it is not open yet.
    void ok() override;

protected:
    void prepare() override;
    void changeEvent(QEvent* event) override;
    /// Enter on a plan opens it; on the one that is open it says OK.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addPlans();
    void addWaypoints();
    QLabel* addHeading(const QString& caption, const QString& name, int row);
    void clearPlan();
    QString selectedPlan() const;
    /// Reads the plan that is selected, shows it and its weather.
    void openPlan();
    void readFlightPlan(const QString& name);
    void processFlightPlan(const FlightPlan& plan);
    void addWaypoint(const Waypoint& waypoint);
    void showDisc(QTreeWidgetItem& waypoint);

    FilePath folder_;
    QString openPlan_; ///< the name of the plan that is shown; empty for none
    SetTable *lvwFPList_, *lvwFlightPlan_;
    QLabel *lblNoFlightPlans_, *lblNoWaypoints_, *lblDepVal_, *lblDestVal_, *lblAltVal_, *lblProgress_;
    SkinnedProgressBar* pbFlightPlan_;
    CoverLabel cover_;
};

} // namespace morvane
