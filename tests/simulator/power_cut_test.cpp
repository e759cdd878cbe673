#include "ground/ground_installation.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "sets/originals.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "simulator/base_install.h"
#include "simulator/kept_stock.h"
#include "simulator/stock_requests.h"
#include "simulator/undo_install.h"
#include "support/small_install.h"

#include <QDir>

namespace morvane::test {
namespace {

using Tree = QMap<QString, QByteArray>;

/// What a job does behind what was done before it, and what gives the first tree back.
struct CutJob {
    const char* name;
    std::function<void()> before, job, undo;
    bool isUndoneAtOnce; ///< also without the job being done again
};

/// A cut of power at every change that a job makes, in ten orders in which a disk may have written.
struct PowerCuts : InstallTest {
    const FilePath root = install.home().parent(), world = install.simulator() / u"Scenery\\World\\texture";
    const StockSource source{world, install.simulator() / u"Scenery\\UTEurLC\\Texture"};
    const QString changed = "Simulator Ünï/Scenery/World/texture/Neu Ünï.bmp";
    Tree first;

    PowerCuts() : InstallTest({{"GENERIC WORLD\\029h2su6.bmp", "GENERIC WORLD\\029b2su6.bmp"}, 16}) {
        const QByteArray texture = compressTexture(
            loadPicture(install.files, install.home() / u"Resources\\GENERIC WORLD\\029h2su6.bmp"));
        QStringList names{"UTEurLC\\034b2su4.bmp", "Texture\\Neu Ünï.bmp", "Texture\\added.bmp"};
        for (const char* number : {"002", "007", "010", "029", "030"})
            for (const QString& name : {QString(number) + "b2su1.bmp", QString(number) + "a2an1.agn"}) {
                writeFile(world / name,
                          name.endsWith("bmp") ? texture + name.toUtf8() : "trees " + name.toUtf8());
                writeFile(install.home() / u"GENERIC WORLD" / name, "body " + name.toUtf8());
                writeFile(install.home() / u"Resources\\GENERIC WORLD" / name, "base " + name.toUtf8());
                names << "Texture\\" + name;
            }
        writeFile(world / u"Neu Ünï.bmp", "the pilot's");
        writeFile(install.simulator() / u"Scenery\\UTEurLC\\Texture\\034B2SU4.BMP", "the pilot's");
        install.addGroundSet("2-Á", "Overcast", true, names);
        install.addGroundSet("3-B", "Sky Clear", true, names);
        session.adoConn->execute("INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, FS_FOLDER) VALUES ('" +
                                 globalDayConfig + "', 'GENERIC WORLD', 'Scenery\\World\\texture')");
        first = tree();
    }
    Tree tree() const {
        Tree now;
        for (const QString part : {"Simulator Ünï/", "Morvane/Backup/", "Morvane/Resources/",
                                   "Morvane/Resources kept/", "Morvane/GENERIC WORLD/"}) {
            const Tree inside = contentsBelow(root / part);
            for (auto file = inside.begin(); file != inside.end(); ++file)
                now.insert(part + file.key(), *file);
        }
        return now;
    }
    void setTree(const Tree& wanted) const {
        const Tree now = tree();
        for (auto file = now.begin(); file != now.end(); ++file)
            if (!wanted.contains(file.key())) {
                QFile::remove((root / file.key()).native());
                QDir().rmpath((root / file.key()).parent().native());
            }
        for (auto file = wanted.begin(); file != wanted.end(); ++file)
            if (now.value(file.key()) != *file || file->isEmpty()) writeFile(root / file.key(), *file);
    }
    void put(const QString& name) { GroundInstallation(session).installTextureSet(name); }
    void restore() {
        const OriginalsReport report = originals().restore();
        EXPECT_EQ(report.damaged, QStringList());
        EXPECT_FALSE(report.failure);
    }
    Originals originals() { return {install.files, session.FSPath, session.AppPath}; }

    /// Files of the pilot's that are neither in their place nor kept with their line.
    QStringList lost(const QMultiMap<QString, QByteArray>& own, const Tree& now) {
        QMultiMap<QString, QByteArray> kept;
        for (const KeptOriginal& one : originals().list())
            if (const auto copy = install.files.readIfThere(install.home() / u"Backup\\Originals" / one.copy))
                kept.insert("Simulator Ünï/" + QString(one.path).replace('\\', '/'), *copy);
        const KeptStock stock(install.files, session.AppPath);
        QStringList names;
        for (auto file = own.begin(); file != own.end(); ++file) {
            if (now.value(file.key()) == *file || kept.contains(file.key(), *file)) continue;
            const auto place = stock.deliveredPlace(file.key().section('/', 1).replace('/', '\\'));
            if (!place || install.files.readIfThere(*place) != *file) names << file.key();
        }
        return names;
    }
    /// Where the first backup says that it is complete: what it lacks.
    QStringList lacking(const Tree& now) {
        QStringList names;
        const QString folder = "Simulator Ünï/Scenery/World/texture/";
        for (const QString& name : isBackupComplete(session, "1-Backup") ? first.keys() : QStringList())
            if (name.startsWith(folder) && name.toLower().endsWith(".bmp") &&
                now.value("Morvane/Backup/1-Backup/Texture/" + name.mid(folder.size())) != first[name])
                names << name;
        return names;
    }
    /// Where the first tree is not back; what is kept and parts of copies are no part of it.
    QStringList differing() const {
        const Tree now = tree();
        QStringList names;
        for (const QString& name : now.keys() + first.keys())
            if (now.value(name, "none") != first.value(name, "none") && !name.startsWith("Morvane/Backup") &&
                !name.startsWith("Morvane/Resources kept") && !name.endsWith(".morvane-part"))
                names << name;
        return names;
    }
    bool runUntilChange(const CutJob& job, int change) {
        install.files.killAtChange(change);
        try {
            job.job();
        } catch (const Killed&) {
        }
        const bool wasHit = install.files.hasFailed();
        install.files.heal();
        return wasHit;
    }
    /// What several orders leave alike is looked at once.
    void cutEverywhere(const CutJob& job) {
        setTree(first);
        job.before();
        const Tree before = tree();
        QMultiMap<QString, QByteArray> own(first);
        if (before[changed] == "his next") own.insert(changed, "his next");
        QSet<size_t> seen;
        int change = 1;
        for (bool wasHit = true; wasHit; change += faultStride) {
            setTree(before);
            wasHit = runUntilChange(job, change);
            const Tree killed = tree();
            std::vector<Tree> cuts;
            for (unsigned order = 0; order < 10; order += static_cast<unsigned>(faultStride)) {
                setTree(killed);
                install.files.cutPower(order + 10 * static_cast<unsigned>(change));
                const Tree left = tree();
                const size_t state = qHashMulti(0, left.keys(), left.values());
                if (seen.contains(state)) continue;
                seen << state;
                cuts.push_back(left);
                const QStringList wrong = lost(own, left) + lacking(left);
                ASSERT_EQ(wrong, QStringList()) << job.name << ", change " << change << ", order " << order;
            }
            for (std::size_t i = change % 3; i < cuts.size(); i += 3) { // a third is mended: it takes longest
                setTree(cuts[i]);
                if (i % 2 == 0 || !job.isUndoneAtOnce) job.job();
                QStringList wrong = lost(own, tree());
                job.undo();
                wrong += differing();
                ASSERT_EQ(wrong, QStringList()) << job.name << ", change " << change << ", cut " << i;
            }
        }
        EXPECT_GT(change, 15) << job.name;
    }
};

TEST_F(PowerCuts, loseNoOriginalAndAreMended) {
    const auto nothing = [] {};
    const auto giveBack = [this] { restore(); };
    const auto putA = [this] { put("2-Á"); };
    const auto backUp = [this] { createBackup(session, true); };
    const auto import = [this] { importStock(session, source); };
    const auto stockBack = [this] { restoreStock(session, true); };
    for (const CutJob& job : {
             CutJob{"install", nothing, putA, giveBack, true},
             {"install of another set", [this] { put("3-B"); }, putA, giveBack, false},
             {"base install", nothing, [this] { copyBaseResources(session, {globalDayConfig}); }, giveBack,
              true},
             {"originals restore", putA, giveBack, giveBack, false},
             {"backup", nothing, backUp, nothing, false},
             {"backup put back",
              [&] {
                  backUp();
                  putA();
                  writeFile(world / u"Neu Ünï.bmp", "his next");
              },
              [this] { restoreBackup(session, "1-Backup"); }, giveBack, false},
             {"undo", [&] { put("3-B"), putA(); }, [this] { undoLastInstall(session); }, giveBack, true},
             {"undo of the first", putA, [this] { undoLastInstall(session); }, giveBack, true},
             {"stock import", nothing, import, stockBack, true},
             {"stock restore", import, stockBack, stockBack, false},
         })
        cutEverywhere(job);
}

} // namespace
} // namespace morvane::test
