#pragma once

#include <QWidget>

namespace morvane {

/// The sign beside a step of a longer work, 20 x 20: an empty ring, a ring with the share that is done, a
/// ring with a tick or with a line, a warning triangle. A word says the same beside it.
class StepMark : public QWidget {
    Q_OBJECT
public:
    enum class Sign { empty, share, tick, line, warning };

    explicit StepMark(QWidget* parent);

    /// `percent` is of the share alone.
    void setSign(Sign sign, double percent = 0);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Sign sign_ = Sign::empty;
    double percent_ = 0;
};

} // namespace morvane
