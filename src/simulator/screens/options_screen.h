#pragma once

#include "ui/page_form.h"

class QCheckBox;

namespace morvane {

struct SimulatorOption;

/// The options. Each box takes effect when it is clicked; there is nothing to confirm.
class frm_Switcher : public PageForm {
    Q_OBJECT
public:
    explicit frm_Switcher(Shell& shell);

    void format() override { formatSwitcherScreen(); }
    void refresh() override { loadSwitcherValues(); }

private:
    void addOption(const SimulatorOption& option);
    void addFlightsFolder();
    void addMoreSettings();
    void formatSwitcherScreen();
    /// Shows the flags and the flights' folder, without any effect and without a question.
    void loadSwitcherValues();
    void takeOption(const SimulatorOption& option, bool isTicked);
    void clearBox(const SimulatorOption& option);

    bool SwitcherPopulating = false; ///< the boxes are filled: their clicks do nothing
    std::vector<std::pair<const SimulatorOption*, QCheckBox*>> boxes_;
    QLabel *lblFSFilesPath_, *lblFSFilesPathVal_;
};

} // namespace morvane
