#include "app/first_install.h"
#include "core/install_lock.h"
#include "core/literals.h"
#include "core/store_connection.h"
#include "support/small_install.h"
#include "ui/dialog_form.h"
#include "ui/skin.h"
#include "window/content_update.h"
#include "window/first_start.h"
#include "window/program.h"
#include "window/window_line.h"
#include "window/window_shell.h"
#include "window/window_user.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <functional>

namespace morvane::test {
namespace {

/// Cancels a progress that shows as soon as that is wanted, and counts the boxes that it accepts.
struct Hand {
    std::function<bool()> isCancelWanted;
    int boxes = 0;
    QTimer timer;

    explicit Hand(const std::function<bool()>& isWanted) : isCancelWanted(isWanted) {
        timer.callOnTimeout([this] {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (auto* progress = qobject_cast<QProgressDialog*>(window);
                    progress && progress->isVisible() && isCancelWanted())
                    progress->findChild<QPushButton*>()->click();
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                ++boxes, box->accept();
        });
        timer.start(0);
    }
};

TEST(WindowLine, wordsAreACoverCodeButForThoseWithADash) {
    const std::tuple<QStringList, QString, QString, QString> cases[] = {
        // words; home, cover code, slip
        {{u"fog"_s}, {}, u"fog"_s, {}}, // unknown, and taken: wanted
        {{u"OVC"_s, u"010"_s}, {}, u"OVC 010"_s, {}},
        {{u"OVC"_s, u"--home=/a b"_s}, u"/a b"_s, u"OVC"_s, {}},
        {{u"fog.pln.bak"_s}, {}, u"fog.pln.bak"_s, {}},
        {{u"--hlep"_s}, {}, {}, u"Unknown option 'hlep'."_s},
        {{u"--"_s, u"-OVC"_s}, {}, u"-OVC"_s, u"Unknown option '-OVC'."_s},
        {{u"--home"_s}, {}, {}, u"Missing value after '--home'."_s},
        {{u"--home="_s}, {}, {}, u"--home stands without its value"_s},
    };
    for (const auto& [words, home, coverCode, slip] : cases) {
        const WindowLine line = readWindowLine(words);
        EXPECT_EQ((QStringList{line.home, line.coverCode, line.slip, line.output}),
                  (QStringList{home, coverCode, slip, {}}))
            << words.join(u' ').toStdString();
    }
}

TEST(WindowLine, whatEndsAsAFileDoesIsNeverACoverCode) {
    for (const QStringList& words : std::vector<QStringList>{
             {u"/nowhere/Route.PLN"_s}, {u"my"_s, u"route.LnmPln"_s}, {u"Look.MORVANESET"_s}}) {
        const WindowLine line = readWindowLine(words);
        EXPECT_EQ(line.file, words.join(u' '));
        EXPECT_TRUE(line.coverCode.isEmpty() && line.slip.isEmpty());
        Hand hand([] { return false; });
        EXPECT_FALSE(isThere(line.file));
        EXPECT_EQ(hand.boxes, 1) << "one message";
    }
}

TEST(WindowLine, theProgramAnswersWithoutADisplay) {
    const std::tuple<QString, int, QByteArray, QByteArray> cases[] = {
        {u"--help"_s, 0, "Usage: morvane [--home DIR]", ""},
        {u"--version"_s, 0, "morvane 2.", ""},
        {u"--hlep"_s, 2, "", "morvane: Unknown option 'hlep'.\n"},
    };
    for (const auto& [word, status, output, errors] : cases) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"MORVANE_HOME"_s, u"/nowhere at all"_s);
        for (const QString& display : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(display);
        if (status != 0) environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(MORVANE_BIN_DIR "/morvane"), {word});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), status) << word.toStdString();
        const QByteArray said = program.readAllStandardOutput();
        EXPECT_TRUE(said.startsWith(output) && said.isEmpty() == output.isEmpty()) << said.constData();
        EXPECT_TRUE(program.readAllStandardError().replace("\r\n", "\n").endsWith(errors));
    }
}

TEST(FirstStart, leavesNothingWhenItIsCancelled) {
    const TemporaryFolder folder;
    const QString home = (folder / u"Deep\\Morvane").native();
    Hand hand([] { return true; });
    EXPECT_FALSE(makeInstallFolder(home));
    EXPECT_EQ(hand.boxes, 0);
    EXPECT_TRUE(
        QDir((folder / u"Deep").native()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

TEST(FirstStart, goesOnWhereItsFilesWereBeingPutInPlace) {
    const TemporaryFolder folder;
    const FilePath home = folder / u"Mörvane";
    NativeFileSystem files;
    EXPECT_TRUE(awaitsFirstStart(home.native()));
    files.makeFolder(home);
    IniRegistry registry(files, home / u"registry.ini");
    storeOwnValue(registry, u"WeatherServer"_s, u"the pilot's"_s);
    EXPECT_TRUE(awaitsFirstStart(home.native())) << "a program that has everything in one folder";
    writeFile(home / u"Media\\one.bmp", "1");
    EXPECT_FALSE(awaitsFirstStart(home.native()));
    for (const QString& name : {u"registry.ini"_s, u"Backup\\two.bmp"_s, u"Morvane.mdb"_s})
        writeFile(home / u"first start" / name, "made");
    EXPECT_TRUE(awaitsFirstStart(home.native()));
    EXPECT_TRUE(makeInstallFolder(home.native()));
    EXPECT_FALSE(awaitsFirstStart(home.native()));
    for (const auto& [name, text] : {std::pair(u"WeatherServer"_s, "the pilot's"), {u"FirstTime"_s, "True"}})
        EXPECT_EQ(ownValue(registry, name), text) << "the file beside the program counts";
    EXPECT_EQ(files.read(home / u"Backup\\two.bmp"), "made");
    EXPECT_EQ(files.listFolders(home), QStringList({u"Backup"_s, u"Media"_s}));
}

/// Base images of density 6 take a while; 7 there are none.
TEST(FirstStart, ofANewerVersionTellsOfAFailureAndGoesOn) {
    const struct {
        QByteArray density;
        bool isPutOff, isLocked;
        int boxes;
    } cases[] = {{"7", false, false, 1}, {"6", true, false, 0}, {"7", false, true, 0}};
    for (const auto& [density, isPutOff, isLocked, boxes] : cases) {
        const TemporaryFolder folder;
        const FilePath list = folder / u"content.version", store = folder / u"Morvane.mdb";
        writeFile(list, "content 1 density " + density + '\n');
        EXPECT_FALSE(awaitsContentUpdate(folder.path())) << "without a store there is no install";
        writeFile(store, "store");
        EXPECT_TRUE(awaitsContentUpdate(folder.path()));
        InstallLock other(folder.path(), u"Writing.lock"_s);
        EXPECT_TRUE(!isLocked || other.tryTake());
        Hand hand([&, isPutOff = isPutOff] { // when it is at work
            return isPutOff && readFile(list).contains('\t');
        });
        updateDeliveredContent(folder.path());
        EXPECT_EQ(hand.boxes, boxes) << density.toStdString();
        EXPECT_TRUE(readFile(list).startsWith("content 1 ")) << "the next start goes on";
        EXPECT_EQ(readFile(store), "store");
        EXPECT_TRUE(awaitsContentUpdate(folder.path()));
        if (boxes > 0) updateDeliveredContent(folder.path());
        EXPECT_EQ(awaitsContentUpdate(folder.path()), boxes == 0) << "what fails twice fails at each start";
        writeFile(list, readFile(list).replace("failed ", "failed 1"));
        EXPECT_TRUE(awaitsContentUpdate(folder.path())) << "a newer version tries it, too";
    }
}

TEST(FirstStart, withAStoreThatIsNoneSaysSoOnceAndKeepsItsFirstRunForLater) {
    SmallInstall install;
    closeDatabase(install.session);
    writeFile(install.home() / u"Morvane.mdb", QByteArray("no store at all ").repeated(500));
    const std::pair<QString, QString> values[] = {{u"FirstTime"_s, u"True"_s},
                                                  {u"NonEnglishPath"_s, install.folder.path().native()}};
    for (const auto& [name, text] : values)
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name, text);
    WindowUser user;
    Session session({user, install.files, install.clock, install.random, install.registry}, install.home());
    Skin skin(install.files, install.home() / u"Media");
    WindowShell shell(session, skin);
    user.setShell(&shell);
    QStringList told;
    QTimer timer;
    timer.callOnTimeout([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        auto* message = qobject_cast<DialogForm*>(shell.loadedForm(u"frm_Msg"_s));
        const Form* mainWindow = shell.loadedForm(u"frm_Main"_s);
        if (box) {
            told << box->text();
            box->accept();
        } else if (message && message->isVisible()) {
            told << message->findChild<QLabel*>(u"lbl_Message"_s)->text();
            message->ok();
        } else if (mainWindow && mainWindow->isVisible()) {
            EXPECT_FALSE(mainWindow->findChild<QLabel*>(u"lblWideFS"_s)->isVisible()) << "a claim";
            QCoreApplication::exit(0);
        }
    });
    timer.start(0);
    EXPECT_EQ(runProgram(shell, {}), 0);
    ASSERT_EQ(told.size(), 2) << told.join(u'\n').toStdString();
    EXPECT_TRUE(told[0].contains(u"file is not a database"_s));
    EXPECT_TRUE(told[1].startsWith(u"These files of the skin are missing"_s));
    EXPECT_EQ(install.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"FirstTime"_s), "True");
}

} // namespace
} // namespace morvane::test
