#pragma once

#include <QLabel>

namespace morvane {

class Skin;

/// A picture of the skin in the colour of text, which changes with the palette.
class SkinSign : public QLabel {
    Q_OBJECT
public:
    SkinSign(Skin& skin, QWidget* parent) : QLabel(parent), skin_(skin) {}

    /// The picture of that file below "\Media"; nothing for an empty name.
    void showSign(const QString& fileName);

protected:
    void changeEvent(QEvent* event) override;

private:
    Skin& skin_;
    QString fileName_;
};

} // namespace morvane
