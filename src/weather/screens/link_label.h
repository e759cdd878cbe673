#pragma once

#include <QAbstractButton>

namespace morvane {

/// A line of text at the right of its place that leads somewhere when it is enabled.
class LinkLabel : public QAbstractButton {
    Q_OBJECT
public:
    explicit LinkLabel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace morvane
