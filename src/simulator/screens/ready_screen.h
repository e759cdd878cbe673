#pragma once

#include "core/progress_taker.h"
#include "simulator/get_ready.h"
#include "ui/controls/step_mark.h"
#include "ui/dialog_form.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace morvane {

class SkinnedProgressBar;

/// Get ready to fly: five steps with a tick each, done one after the other in the dialog itself. What is done
/// stays, and shows as done when it is opened again.
class frm_Ready : public DialogForm, private ProgressTaker {
    Q_OBJECT
public:
    explicit frm_Ready(Shell& shell);

    /// Begins; at the end closes.
    void ok() override;
    /// Ends the run behind the file in hand, and closes where none runs.
    void cancel() override;

protected:
    void prepare() override;
    void confirm() override {}

private:
    enum class Stage { before, running, after };
    struct Row {
        QCheckBox* box;
        QLabel *line, *state;
        StepMark* mark;
    };

    Row addRow(ReadyStep step);
    void addTextureOptions();
    void addProgress();
    void chooseTextures();
    void enter(Stage stage);
    void runSteps();
    void showLine(ReadyStep step, const ReadyLine& line);
    void takeProgress(double percent) override;
    void takeMessage(const Message& message) override;

    Stage stage_ = Stage::before;
    ReadyWishes wishes_;
    ReadyStep step_{}; ///< that is worked on
    bool knowsShare_ = false;
    QString lastMessage_;
    GetReady* run_ = nullptr; ///< while it runs
    QLabel *lblSteps_, *lblProgress_;
    std::array<Row, readyStepCount> rows_{};
    QRadioButton *optDelivered_, *optOwn_;
    SkinnedProgressBar* pbReady_;
    QPushButton* cmdCancel_;
};

} // namespace morvane
