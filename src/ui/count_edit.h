#pragma once

#include "core/literals.h"
#include "ui/controls/labels.h"

#include <QLineEdit>
#include <array>
#include <cstdint>

namespace morvane {

class Form;

/// A box for a count of sets that lives in the session: digits and a full stop are all that can be typed or
/// pasted. It selects all when it gets the focus and at a click, and is never left empty.
class CountEdit : public QLineEdit {
    Q_OBJECT
public:
    /// Each change of the text is written to `count`. What is no count ("1.2.3", or more than 16 bits) is
    /// told, and the box goes back to the last one that was.
    /// An empty box counts as `whenEmpty`.
    CountEdit(Form& form, std::int16_t& count, std::int16_t whenEmpty = 0);

    /// The count as it stands.
    void showCount();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void storeCount();

    Form& form_;
    std::int16_t& count_;
    const std::int16_t whenEmpty_;
};

/// A column of five boxes, one below the other.
struct CountColumn {
    QRect firstCaption, firstBox;
    int pitch;
    TextRole captionRole;
    QString overcastCaption; ///< the only one that differs between screens
};

/// The boxes of the cloud covers 1 to 5 with their captions.
std::array<CountEdit*, 5> addCountBoxes(Form& form, std::array<std::int16_t, 5>& counts,
                                        const CountColumn& column);

} // namespace morvane
