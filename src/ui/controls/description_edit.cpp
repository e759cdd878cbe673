#include "ui/controls/description_edit.h"

#include "ui/controls/labels.h"

#include <QKeyEvent>

namespace morvane {

DescriptionEdit::DescriptionEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setFont(fontOf(TextRole::body));
}

void DescriptionEdit::keyPressEvent(QKeyEvent* event) {
    const bool isOfDialog =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape;
    if (isOfDialog)
        event->ignore();
    else
        QPlainTextEdit::keyPressEvent(event);
}

} // namespace morvane
