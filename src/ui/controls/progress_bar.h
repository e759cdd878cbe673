#pragma once

#include <QWidget>

namespace morvane {

/// A round trough with a fill of light; as high as it is made, 16 or 12.
class SkinnedProgressBar : public QWidget {
    Q_OBJECT
public:
    explicit SkinnedProgressBar(QWidget* parent);

    /// 0 to 100; what lies outside is cut.
    void setValue(double value);
    double value() const { return value_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double value_ = 0;
};

} // namespace morvane
