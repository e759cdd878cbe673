#pragma once

#include "sheets/sheet_pictures.h"

#include <QLabel>
#include <vector>

namespace morvane {

class DividedPicture;

/// Beside a sheet: the picked texture, what it is, and the colours of the set. It lies in a form at `place`.
class SheetPanel : public QWidget {
    Q_OBJECT
public:
    static constexpr QRect place{644, 80, 222, 424};

    explicit SheetPanel(QWidget* parent);

    /// Captions, colours; nothing is picked.
    void showSheet(const Sheet& sheet);
    void showTexture(const Sheet& sheet, const SheetTexture& texture, const SheetPair& whole);
    void showBase(bool isWanted);

private:
    void showColours(const Sheet& sheet);

    QLabel *lblBase_, *lblOwn_, *lblTexture_, *lblPlace_, *lblColours_;
    DividedPicture* picture_;
    struct ColourLabels {
        QLabel *name, *value;
    };
    std::vector<ColourLabels> colours_;
};

} // namespace morvane
