#pragma once

#include "simulator/difference_choices.h"
#include "simulator/simulator_check.h"
#include "ui/dialog_form.h"

#include <array>

class QCheckBox;
class QLabel;

namespace morvane {

class CountRow;
class SetTable;

/// "In the simulator now": what lies there of ours and of the pilot's, and what can be done about files that
/// another program changed.
class frm_InSimulator : public DialogForm {
    Q_OBJECT
public:
    explicit frm_InSimulator(Shell& shell);

    /// Does it with the ticked files and looks again.
    void settle(DifferenceChoice choice);

protected:
    void prepare() override;
    void confirm() override {}

private:
    static constexpr std::size_t countRows = 5, partRows = 5;
    /// The labels of one thing that is installed.
    struct PartLabels {
        QLabel *kind, *name, *state;
        QWidget* hair;
    };

    void addCounts();
    void addParts();
    void addList();
    void addKeys();
    void look(CheckDepth depth);
    void show(const SimulatorCheck& check);
    void showParts();
    void pick(std::size_t row);
    void fillList();
    void showTicks();
    bool isListed(const CheckedPlace& place) const;

    SimulatorCheck check_;
    std::optional<std::size_t> picked_; ///< of the rows at the left; without one the list has what differs
    QLabel* lblLooked_;
    std::array<CountRow*, countRows> counts_{};
    std::array<PartLabels, partRows> parts_{};
    QLabel *lblFiles_ = nullptr, *lblTicked_ = nullptr, *lblNothing_ = nullptr;
    SetTable* lstFiles_ = nullptr;
    QCheckBox* chkAll_ = nullptr;
};

} // namespace morvane
