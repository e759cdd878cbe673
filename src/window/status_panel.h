#pragma once

#include "ui/controls/labels.h"
#include "ui/page_form.h"

#include <array>

namespace morvane {

/// How many sets there are and how many of them are activated.
struct SetCount {
    int total = 0, activated = 0;
};

/// The counts of a collection by cloud cover, and its installed set.
struct SetSummary {
    std::array<SetCount, 5> covers; ///< by number of the cover, less one
    SetCount all;
    QString installedName, installedCover;
};

/// The status page: what is in the simulator now, how many sets there are, which base textures are installed.
class StatusPanel : public Paper {
    Q_OBJECT
public:
    explicit StatusPanel(Form& form);

    void refreshMainStatus();

private:
    /// The labels of the ground or of the sky; their names differ in the middle word only.
    struct SetLabels {
        std::array<QLabel*, 5> totals, activated;
        QLabel *total, *activatedTotal, *installed, *cover, *summary;
    };

    QLabel* addLabel(const QString& name, const QRect& place, TextRole role, bool toTheRight = false);
    void addHeadings();
    SetLabels addSetLabels(const QString& word, const QString& installedName, int totalsAt, int activeAt,
                           int installedTop, int summaryTop);
    void addBaseRows();
    static void fill(const SetLabels& labels, const SetSummary& summary);
    void refreshInstalledItems();
    void refreshGround();
    void refreshSky();

    Form& form_;
    SetLabels ground_, sky_;
    QLabel *lblCurrentNightTSName_, *lblBackupValue_, *lblWideFS_;
    std::array<QLabel*, 4> installed_;
};

} // namespace morvane
