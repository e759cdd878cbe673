#pragma once

#include <QString>

class QWidget;

namespace morvane {

/// The kinds of files that a choice offers: "Looks of sets (*.morvaneset)".
QString fileKinds(const QString& meaning, const QString& ending);

// The system's own dialogs, above the window of `parent`. Empty on Cancel.

QString chooseFileToOpen(QWidget* parent, const QString& title, const QString& kinds);
/// Whether another file is to be written over is for the writer to ask, who does so at the console, too. The
/// ending is put behind a name that was typed without one.
QString chooseFileToSave(QWidget* parent, const QString& title, const QString& suggestedName,
                         const QString& kinds, const QString& ending);

} // namespace morvane
