// Whatever a pilot does in whatever order, kills included, the originals give the first tree back.

#include "app/start_up.h"
#include "core/safe_copy.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/ground_installation.h"
#include "night/night_installation.h"
#include "night/night_selection.h"
#include "sets/options_in_force.h"
#include "sets/undo_step.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"
#include "simulator/base_install.h"
#include "simulator/base_install_rows.h"
#include "simulator/flights.h"
#include "simulator/installed_rows.h"
#include "simulator/options.h"
#include "simulator/simulator_check.h"
#include "simulator/simulator_restore.h"
#include "simulator/stock_import.h"
#include "simulator/stock_requests.h"
#include "simulator/texture_switches.h"
#include "simulator/undo_install.h"
#include "sky/sky_installation.h"
#include "support/night_install.h"
#include "support/small_install.h"

#include <QDirIterator>
#include <QFileInfo>
#include <chrono>
#include <filesystem>
#include <random>

namespace morvane::test {
namespace {

constexpr int steps = 30, oftenKilled = 4, latestKill = 120;
constexpr int seedsInEveryRun = 3;

/// Contents and mode of every file below a folder, names of folders alone.
using Tree = QMap<QString, std::pair<QByteArray, unsigned>>;

Tree treeOf(FileSystem& files, const FilePath& folder) {
    Tree tree;
    const QMap<QString, QByteArray> contents = contentsBelow(folder);
    for (auto file = contents.begin(); file != contents.end(); ++file)
        tree[file.key()] = {*file, files.stamp(FilePath(folder.native() + u'/' + file.key())).mode};
    QDirIterator inside(folder.native(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (inside.hasNext())
        tree[inside.next().mid(folder.native().size() + 1)] = {};
    return tree;
}

/// One of two simulators that the program is used with.
struct Plane {
    FilePath folder;
    Tree first;              ///< as it was before the program's first copy, with what the pilot changed since
    QStringList changed;     ///< by another hand: what becomes of those is told elsewhere
    QStringList unsure = {}; ///< taken away by a run that was killed
    QMap<QString, QByteArray> own; ///< the pilot's latest, of those
};

/// An install, its simulators and the hands that work on them.
class RandomSequence {
public:
    explicit RandomSequence(unsigned seed) : random_(seed) {
        const FilePath home = install_.home(), simulator = FilePath(install_.simulator().native());
        addSets();
        addBodies();
        const FilePath world = simulator / u"Scenery\\World\\texture";
        for (const char16_t* name : {u"005A2AN1.AGN", u"029H2AN1.AGN", u"045H2SP1.BMP"})
            writeFile(world / name, "the pilot's");
        // Of the same bytes as one of ours.
        writeFile(world / u"029b2an1.agn", "body of GENERIC WORLD\\029b2an1.agn");
        writeFile(simulator / u"Texture\\HALO.bmp", "the default halo");
        files_.setMode(world / u"005A2AN1.AGN", 0600);
        files_.setMode(world / u"029H2SU6.BMP", 0444);
        closeDatabase(install_.session);
        const FilePath other(install_.folder.path().native() + u"/Simulator the second"_s);
        const QMap<QString, QByteArray> contents = contentsBelow(simulator);
        for (auto file = contents.begin(); file != contents.end(); ++file)
            writeFile(other / file.key(), *file + (file.key().contains(u"008") ? " of another" : ""));
        for (const FilePath& one : {simulator, other}) {
            makeOlder(one);
            planes_.push_back({one, treeOf(files_, one), {}, {}, {}});
        }
        current_ = &planes_.front();
        restart();
    }

    void run() {
        for (int i = 0; i < steps; ++i)
            step();
        for (Plane& plane : planes_) {
            current_ = &plane;
            restart();
            expectFirstTree();
        }
    }

private:
    /// No file of the pilot's was written while we wrote ours.
    static void makeOlder(const FilePath& folder) {
        namespace fs = std::filesystem;
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(folder.native().toStdU16String())))
            if (entry.is_regular_file())
                fs::last_write_time(entry.path(), entry.last_write_time() - std::chrono::hours(1));
    }

    void addSets() {
        int number = 2;
        for (const QString& cover : {u"Overcast"_s, u"Sky Clear"_s, u"Unknown"_s})
            install_.addGroundSet(u"%1-Ground"_s.arg(number++), cover, true,
                                  {u"Texture\\029h2su6.bmp"_s, u"Texture\\029b2su6.bmp"_s,
                                   u"Texture\\%1.bmp"_s.arg(cover), u"UTEurLC\\034b2su4.bmp"_s,
                                   u"Dutch\\005a2su2.bmp"_s});
        install_.addSkySet(u"1-Sky"_s, u"Overcast"_s, true, {u"cloud.bmp"_s, u"halo.bmp"_s});
        install_.addSkySet(u"2-Sky"_s, u"Few"_s, true, {u"Cloud.bmp"_s, u"sun.bmp"_s});
        addNightStock(install_);
        for (const char16_t* name : {u"Default", u"2-Night", u"3-Night"})
            addNightSet(install_, QString::fromUtf16(name), true,
                        {u"Texture\\008a2lm1.bmp"_s, u"Texture\\029b2lm1.bmp"_s, u"Dutch\\005a2lm2.bmp"_s});
    }

    void addBodies() {
        for (const char16_t* path :
             {u"DUTCH\\005a2an1.agn", u"DUTCH NIGHT\\005a2an2.agn", u"GENERIC WORLD\\005a2an1.agn",
              u"GENERIC WORLD\\029b2an1.agn", u"GENERIC WORLD\\045b2sp1.bmp", u"UT EUROPE\\090b2su1.bmp"})
            writeFile(install_.home() / path, "body of " + QStringView(path).toUtf8());
        writeFile(install_.home() / u"Media\\halo.bmp", "our halo");
        writeFile(install_.home() / u"Media\\halodefault.bmp", "the default halo");
        writeFile(install_.home() / u"Media\\dlgsplash.bmp", "the pilot's splash");
        for (const auto& [title, folder, target] :
             {std::tuple{globalDayConfig, "GENERIC WORLD", "Scenery\\World\\texture"},
              {globalNightConfig, "GENERIC WORLD NIGHT", "Scenery\\World\\texture"},
              {addOnConfig, "UTIND", "Scenery\\UTEurLC\\Texture"}}) {
            titles_ << title;
            install_.session.adoConn->execute(
                u"INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES ('%1', '%2', '%3')"_s.arg(
                    title, folder, target));
        }
    }

    /// The next start of the program, on the plane in use.
    void restart() {
        files_.failAt(0, false);
        session_.reset();
        IniRegistry(files_, install_.home() / u"registry.ini")
            .SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s, current_->folder.native());
        registry_ = std::make_unique<IniRegistry>(files_, install_.home() / u"registry.ini");
        session_ = std::make_unique<Session>(
            Session::Services{user_, files_, install_.clock, install_.random, *registry_}, install_.home());
        ASSERT_TRUE(startUp(*session_));
    }

    int draw(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    QString drawFrom(const QStringList& list) { return list.value(draw(static_cast<int>(list.size()))); }
    bool toss() { return draw(2) == 0; }

    void step() {
        const std::pair<const char*, std::function<void()>> all[] = {
            {"ground", [&] { installGround(); }},
            {"ground", [&] { installGround(); }},
            {"sky", [&] { installSky(); }},
            {"night", [&] { installNight(); }},
            {"dutch", [&] { switchDutch(*session_, toss()); }},
            {"tropical", [&] { switchTropical(*session_, toss()); }},
            {"halo", [&] { switchHalo(*session_, toss()); }},
            {"splash", [&] { setCustomSplashVal(*session_, toss()); }},
            {"base install", [&] { copyBase(); }},
            {"import", [&] { importSimulator(); }},
            {"import undone", [&] { restoreStock(*session_); }},
            {"backup", [&] { createBackup(*session_, false); }},
            {"backup put back", [&] { putBackupBack(); }},
            {"originals put back", [&] { restoreOriginals(*session_); }},
            {"undo", [&] { undoLastInstall(*session_); }},
            {"undone at once", [&] { installAndUndo(); }},
            {"undone at once", [&] { installAndUndo(); }},
            {"flights", [&] { bringFlights(); }},
            {"mark", [&] { markReadOnly(); }},
            {"another hand", [&] { changeByHand(); }},
            {"move", [&] { move(); }},
            {"the other simulator", [&] { changeSimulator(); }},
        };
        const auto& [name, action] = all[draw(std::size(all))];
        // An import works on several threads; it has kill tests of its own.
        const bool isKilled = name != std::string("import") && draw(oftenKilled) == 0;
        if (isKilled) files_.killAt(1 + draw(latestKill));
        SCOPED_TRACE(name);
        log_ += name + std::string(isKilled ? " (killed), " : ", ");
        try {
            action();
        } catch (const Error&) { // the switches leave the telling to their callers
        } catch (const Killed&) {
        }
        if (isKilled || draw(6) == 0) restart();
        if (isKilled) noteUnsure();
        files_.failAt(0, false);
        noteBackups();
        expectTruth();
    }

    /// A killed run may have taken a file away and not come to say so.
    void noteUnsure() {
        for (const CheckedPlace& place :
             checkSimulator(*session_, CheckDepth::everyFile, false).differences())
            current_->unsure << QString(place.path).replace(u'\\', u'/');
    }

    /// What a check tells of the simulator is so, and the quick look sees what the thorough one does.
    void expectTruth() {
        const auto quick = checkSimulator(*session_, CheckDepth::changedFiles, false).places,
                   thorough = checkSimulator(*session_, CheckDepth::everyFile, false).places;
        ASSERT_EQ(quick.size(), thorough.size()) << log_;
        for (std::size_t i = 0; i < quick.size(); ++i) {
            const QString path = QString(quick[i].path).replace(u'\\', u'/');
            EXPECT_EQ(quick[i].state, thorough[i].state) << qPrintable(path) << '\n' << log_;
            const bool isThere = QFile::exists(placeOf(path).native());
            EXPECT_FALSE(quick[i].state == PlaceState::missing && isThere) << qPrintable(path) << '\n'
                                                                           << log_;
            EXPECT_TRUE(!quick[i].differs() || current_->changed.contains(path, Qt::CaseInsensitive) ||
                        current_->unsure.contains(path, Qt::CaseInsensitive))
                << qPrintable(path) << '\n'
                << log_;
        }
    }

    void installGround() {
        GroundInstallation(*session_).installTextureSet(
            drawFrom({u"Default"_s, u"2-Ground"_s, u"3-Ground"_s, u"4-Ground"_s}));
    }

    void installSky() { SkyInstallation(*session_).installSkySet(drawFrom({"1-Sky", "2-Sky"})); }

    void installNight() {
        session_->state<NightSelection>().SelectedNightSet = drawFrom({"Default", "2-Night", "3-Night"});
        NightInstallation(*session_).installNightTextureSet();
    }

    /// The simulator and what counts as installed are as before, also where the install was killed.
    void installAndUndo() {
        const std::function<void()> installs[] = {
            [&] { installGround(); }, [&] { installSky(); },
            [&] { installNight(); },  [&] { switchDutch(*session_, toss()); },
            [&] { copyBase(); },      [&] { switchHalo(*session_, toss()); }};
        forgetLastStep(*session_);
        const Tree before = wholeFiles();
        const QJsonObject rows = installedRows(*session_);
        try {
            installs[draw(std::size(installs))]();
        } catch (const Error&) {
        } catch (const Killed&) {
            restart();
        }
        if (!lastStep(*session_)) return;
        undoLastInstall(*session_);
        EXPECT_EQ(wholeFiles(), before) << log_;
        EXPECT_EQ(installedRows(*session_), rows) << log_;
    }
    Tree wholeFiles() {
        Tree tree = treeOf(hand_, current_->folder);
        tree.removeIf([](Tree::iterator file) { return file.key().endsWith(partialCopySuffix); });
        return tree;
    }

    void copyBase() { copyBaseResources(*session_, {drawFrom(titles_), drawFrom(titles_)}); }

    void importSimulator() {
        const FilePath scenery = current_->folder / u"Scenery";
        const Job job(*session_, u"work"_s);
        importStock(*session_, job, StockSource{scenery / u"World\\texture", scenery / u"UTEurLC\\Texture"});
    }

    void bringFlights() {
        for (const char16_t* name : {u"Älpler.flt", u"Älpler.wx"})
            writeFile(install_.home() / u"Flights" / name, "a delivered flight");
        copyDeliveredFlights(*session_);
    }

    /// Those of the plane in use.
    void putBackupBack() {
        QStringList names;
        for (auto backup = backups_.begin(); backup != backups_.end(); ++backup)
            if (*backup == current_) names << backup.key();
        if (!names.isEmpty()) restoreBackup(*session_, drawFrom(names));
    }

    void noteBackups() {
        clsBackups::reload(*session_);
        for (const auto& backup : *session_->rows<clsBackups>())
            if (!backups_.contains(backup->BackupName)) backups_[backup->BackupName] = current_;
    }

    /// Not what a killed run left, which is nobody's.
    QString drawFile() {
        QStringList paths = contentsBelow(current_->folder).keys();
        paths.removeIf([](const QString& path) { return path.endsWith(partialCopySuffix); });
        return drawFrom(paths);
    }
    FilePath placeOf(const QString& path) const { return FilePath(current_->folder.native() + u'/' + path); }

    void markReadOnly() {
        const QString path = drawFile();
        hand_.setReadOnly(placeOf(path), true);
        if (current_->first.contains(path)) current_->first[path].second &= ~0222U;
    }

    void changeByHand() {
        const QString path = drawFile();
        if (path.endsWith(u".exe")) return;
        current_->changed << path;
        current_->own.remove(path);
        hand_.remove(placeOf(path));
        if (toss()) return;
        current_->own[path] = "by another hand " + QByteArray::number(draw(1'000'000));
        writeFile(placeOf(path), current_->own[path]);
    }

    void move() {
        const FilePath place(install_.folder.path().native() + u"/Moved %1"_s.arg(++moves_));
        hand_.rename(current_->folder, place);
        current_->folder = place;
        restart();
    }

    void changeSimulator() {
        current_ = &planes_[draw(2)];
        restart();
    }

    /// What was changed by another hand is left out here, but never lost.
    void expectFirstTree() {
        const auto report = restoreOriginals(*session_);
        ASSERT_TRUE(report) << log_;
        EXPECT_TRUE(report->damaged.isEmpty() && !report->failure) << log_;
        Tree now = treeOf(hand_, current_->folder), first = current_->first;
        for (const QString& left : report->left) {
            const QString path = QString(left).replace(u'\\', u'/');
            EXPECT_TRUE(current_->changed.contains(path, Qt::CaseInsensitive)) << qPrintable(path) << log_;
        }
        for (const QString& path : current_->changed)
            for (QFileInfo above(path); now.contains(path) && above.path() != u".";
                 above.setFile(above.path()))
                first[above.path()] = {};               // it keeps its folders
        for (const QString& path : current_->changed) { // in whatever case it came back
            const auto isIt = [&](Tree::iterator file) {
                return file.key().compare(path, Qt::CaseInsensitive) == 0;
            };
            now.removeIf(isIt);
            first.removeIf(isIt);
        }
        EXPECT_EQ(now.keys(), first.keys()) << log_;
        for (auto file = now.begin(); file != now.end(); ++file)
            EXPECT_EQ(*file, first.value(file.key())) << qPrintable(file.key()) << log_;
        const auto standing = contentsBelow(current_->folder).values(),
                   kept = contentsBelow(install_.home() / u"Backup").values();
        for (const QByteArray& own : current_->own)
            EXPECT_TRUE(standing.contains(own) || kept.contains(own)) << own.data() << '\n' << log_;
        expectNothingInstalled();
    }

    void expectNothingInstalled() {
        for (const auto flag :
             {&OptionsInForce::IsDutch, &OptionsInForce::IsTropical, &OptionsInForce::IsHalo})
            EXPECT_FALSE(storedSwitch(*session_, flag) || session_->state<OptionsInForce>().*flag);
        for (const QString& table :
             {u"TEXTURE_SETS"_s, u"SKY_TEXTURE_SETS"_s, u"NIGHT_TEXTURE_SETS"_s, u"MV_CONFIG"_s})
            for (RowSet rows(*session_->adoConn, u"SELECT * FROM "_s + table); !rows.atEnd(); rows.next())
                EXPECT_FALSE(rows.flag(u"INSTALLED"_s)) << table.toStdString();
    }

    SmallInstall install_{{.baseImages = {u"GENERIC WORLD\\029h2su6.bmp"_s, u"GENERIC WORLD\\029b2su6.bmp"_s,
                                          u"UTIND\\034b2su4.bmp"_s, u"DUTCH\\005a2su2.bmp"_s}}};
    FaultyFileSystem files_;
    NativeFileSystem hand_; ///< no kill reaches it
    ScriptedUser user_;
    std::unique_ptr<IniRegistry> registry_;
    std::unique_ptr<Session> session_;
    std::mt19937 random_;
    std::vector<Plane> planes_;
    Plane* current_ = nullptr;
    QStringList titles_;
    QMap<QString, const Plane*> backups_; ///< by name, and of which plane
    int moves_ = 0;
    std::string log_;
};

/// MORVANE_SEQUENCES says how many; the longer runs begin with the same ones.
TEST(RandomSequence, endsWithTheFirstTree) {
    const int more = qEnvironmentVariableIntValue("MORVANE_SEQUENCES");
    for (int seed = 1; seed <= std::max(seedsInEveryRun, more); ++seed) {
        SCOPED_TRACE(seed);
        RandomSequence(static_cast<unsigned>(seed)).run();
    }
}

} // namespace
} // namespace morvane::test
