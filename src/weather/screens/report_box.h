#pragma once

#include <QFrame>

class QLabel;

namespace morvane {

/// A report in a white box. One that is too long for the box is read whole in its tip.
class MetarBox : public QFrame {
    Q_OBJECT
public:
    /// `labelName` is the name of the text, `caption` what it is.
    MetarBox(const QString& labelName, const QString& caption, const QRect& place, QWidget* parent);

    void setReport(const QString& report);

private:
    QString caption_;
    QLabel* label_;
};

} // namespace morvane
