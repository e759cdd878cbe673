#pragma once

#include "ui/dialog_form.h"

#include <array>

class QCheckBox;
class QLabel;
class QRadioButton;

namespace morvane {

class WeatherSourcesPanel;

/// Settings that are seldom needed, beside the options of the configuration page.
class frm_MoreSettings : public DialogForm {
    Q_OBJECT
public:
    explicit frm_MoreSettings(Shell& shell);

protected:
    void prepare() override;
    void confirm() override {}

private:
    void addSection(const QString& heading, const QRect& place);
    void addUndo();
    void addPalette();
    void showUndo();
    void showPalette();

    QLabel *lblSimulatorPath_, *lblUndoRoom_;
    WeatherSourcesPanel* weather_;
    QCheckBox* chkUndo_;
    std::array<QRadioButton*, 3> optPalettes_{}; ///< in the order of PaletteChoice
};

} // namespace morvane
