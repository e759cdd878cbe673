#include "ui/file_choice.h"

#include "core/literals.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace morvane {

namespace {

QString userFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

QString fileKinds(const QString& meaning, const QString& ending) {
    return u"%1 (*.%2)"_s.arg(meaning, ending);
}

QString chooseFileToOpen(QWidget* parent, const QString& title, const QString& kinds) {
    return QDir::toNativeSeparators(
        QFileDialog::getOpenFileName(parent->window(), title, userFolder(), kinds));
}

QString chooseFileToSave(QWidget* parent, const QString& title, const QString& suggestedName,
                         const QString& kinds, const QString& ending) {
    const QString suggestion = userFolder() + u'/' + suggestedName + u'.' + ending;
    const QString chosen = QFileDialog::getSaveFileName(parent->window(), title, suggestion, kinds, nullptr,
                                                        QFileDialog::DontConfirmOverwrite);
    if (chosen.isEmpty()) return {};
    const bool hasEnding = chosen.endsWith(u'.' + ending, Qt::CaseInsensitive);
    return QDir::toNativeSeparators(hasEnding ? chosen : chosen + u'.' + ending);
}

} // namespace morvane
