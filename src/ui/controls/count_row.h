#pragma once

#include <QAbstractButton>

namespace morvane {

class Skin;

/// A line of a small table that can be picked: a sign, what is counted, and how many at the right. Bold where
/// the eye has to fall on it.
class CountRow : public QAbstractButton {
    Q_OBJECT
public:
    /// `sign` is a file below "\\Media".
    CountRow(Skin& skin, const QString& sign, QWidget* parent);

    void setCount(const QString& what, std::int64_t count, bool isBold = false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Skin& skin_;
    QString sign_, count_;
    bool isBold_ = false;
};

} // namespace morvane
