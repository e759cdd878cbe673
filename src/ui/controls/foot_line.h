#pragma once

#include "core/user_interface.h"

#include <QWidget>

class QLabel;

namespace morvane {

enum class FootSign { cloud, tick, warning };

/// A text on the bezel below a page. One with a cloud is quiet, the others are bright.
struct FootText {
    QString text;        ///< cut where it is too long, and then the line's tip, too
    QString remark = {}; ///< quiet, at the right
    FootSign sign = FootSign::cloud;
};

/// The one line on the bezel below the page, at the same place in every window. A page may have a text that
/// stands there as long as the page does. What a job says at its end takes its place until the next click or
/// key, wherever that goes to.
class FootLine : public QWidget {
    Q_OBJECT
public:
    explicit FootLine(QWidget* window);

    /// The page's own text; an empty one takes it away.
    void setStanding(const FootText& text);
    /// Puts the line before the standing text and has it read out.
    void tellDone(const DoneLine& line);
    /// What is shown now.
    const FootText& shown() const { return isDone_ ? done_ : standing_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void endDone();
    void refresh();

    FootText standing_, done_;
    bool isDone_ = false;
    QLabel *lblText_, *lblRemark_;
};

} // namespace morvane
