#pragma once

#include "ui/dialog_form.h"

class QCheckBox;
class QLabel;

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
    void addSection(const QString& heading, int top);
    void showUndo();

    QLabel *lblSimulatorPath_, *lblUndoRoom_;
    WeatherSourcesPanel* weather_;
    QCheckBox* chkUndo_;
};

} // namespace morvane
