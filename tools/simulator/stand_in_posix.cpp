// morvane-simulator: stands in for fs9.exe in a sample simulator. It flies nothing; it records how it was
// called, so that a start can be seen.

#include "start_record.h"

#include <QCoreApplication>
#include <QDir>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const bool isRecorded =
        morvane::recordStart(QCoreApplication::applicationDirPath(), QCoreApplication::applicationFilePath(),
                             words.mid(1), QDir::currentPath());
    return isRecorded ? 0 : 1;
}
