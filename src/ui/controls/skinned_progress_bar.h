#pragma once

#include <QWidget>

namespace morvane {

/// The bar of the message window (16 high) and of the splash (12 high).
class SkinnedProgressBar : public QWidget {
    Q_OBJECT
public:
    explicit SkinnedProgressBar(QWidget* parent = nullptr);

    double value() const { return value_; }
    /// In hundredths, 0 to 100; what lies beyond is taken as the nearer end. Cheap when it shows no change.
    void setValue(double value);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double value_ = 0;
};

} // namespace morvane
