#include "window/typed_texts.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace morvane {

namespace {

QString typedInto(const QWidget* widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(widget); line && !line->isReadOnly())
        return line->text();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(widget); text && !text->isReadOnly())
        return text->toPlainText();
    if (const auto* text = qobject_cast<const QTextEdit*>(widget); text && !text->isReadOnly())
        return text->toPlainText();
    return {};
}

} // namespace

std::vector<PrivateText> typedInWindows() {
    std::vector<PrivateText> texts;
    for (const QWidget* widget : QApplication::allWidgets()) {
        const std::vector<PrivateText> some = typedTexts(typedInto(widget));
        texts.insert(texts.end(), some.begin(), some.end());
    }
    return texts;
}

} // namespace morvane
