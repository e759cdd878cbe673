#pragma once

#include <QPlainTextEdit>

namespace morvane {

/// A wrapped text in one paragraph: Enter and Escape are the dialog's, Tab goes on to the next control.
class DescriptionEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit DescriptionEdit(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace morvane
