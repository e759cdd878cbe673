#include "support/temporary_folder.h"
#include "ui/first_start.h"

#include "core/literals.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(FirstStart, leavesNothingWhenItIsCancelled) {
    const test::TemporaryFolder folder;
    const QString home = (folder / u"Deep\\Morvane").native();
    QTimer timer;
    timer.callOnTimeout([] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* progress = qobject_cast<QProgressDialog*>(window); progress && progress->isVisible())
                progress->findChild<QPushButton*>()->click();
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            ADD_FAILURE() << box->text().toStdString(), box->accept();
    });
    timer.start(0);
    EXPECT_FALSE(makeInstallFolder(home));
    EXPECT_TRUE(
        QDir((folder / u"Deep").native()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

} // namespace
} // namespace morvane
