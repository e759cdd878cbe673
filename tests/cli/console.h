#pragma once

#include "core/store_connection.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "sky/sky_sets.h"
#include "support/small_install.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>

namespace morvane::test {

/// What a run of the console left: its exit status (-1 when it crashed or had to be killed) and what it
/// wrote.
struct ConsoleRun {
    int status = -1;
    QByteArray output;
    QString messages;

    /// The lines on stdout as JSON objects.
    std::vector<QJsonObject> objects() const;
    /// The one array on stdout.
    QJsonArray array() const;
};

/// The console program itself, started without an install in its environment. A run that does not end within
/// a minute is killed.
class Console {
public:
    explicit Console(const QStringList& arguments);
    /// Waits until stderr holds the text; false when the program ended before.
    bool waitForMessage(const QString& text);
    void interrupt();
    /// At once, as a power cut would.
    void kill();
    ConsoleRun finish(const QByteArray& input = {});

private:
    QProcess process_;
    QByteArray errors_;
};

/// Runs a command line; `more` are arguments behind it that may hold blanks.
ConsoleRun runConsole(const QString& commandLine, const QStringList& more = {}, const QByteArray& input = {});

/// A small install for the console: no session of the test holds its store open while the console runs.
class ConsoleInstall : public SmallInstall {
public:
    explicit ConsoleInstall(const SmallInstallOptions& options = {});

    /// Runs a command on the install, questions answered with yes unless the command line says otherwise.
    ConsoleRun run(const QString& commandLine, const QStringList& more = {}) const;
    QStringList withHome(const QString& commandLine) const;
    /// Does something while the test has the store open.
    template <class Action>
    void withStore(Action action) {
        connectDatabase(session);
        action(session);
        closeDatabase(session);
    }
    void addSet(const QString& name, const QString& cover, bool activated = true,
                const QStringList& names = {u"Texture\\029h2su6.bmp"_s});
    /// Names of all sets of a kind in the store with "+" behind an activated and "*" behind an installed one.
    template <class Kind>
    QString states() {
        QString names;
        withStore([&](Session&) { names = setStates<Kind>(session); });
        return names;
    }
    QString sets() { return states<GroundKind>(); }
    QString skies() { return states<SkyKind>(); }
    QString nights() { return states<NightKind>(); }
    void addSky(const QString& name, const QString& cover, bool activated = true,
                const QStringList& names = {u"day.bmp"_s});
    /// Names of the folders of sets.
    QStringList setFolders() const;
};

/// A command, its words parted by "|", how it ends, and what it says among other things, on either road.
struct ConsoleStep {
    QString words;
    QStringList said = {};
    int status = 0;
};
void expectSteps(ConsoleInstall& install, const std::vector<ConsoleStep>& steps);

/// As a path stands in JSON.
QString quoted(QString path);

/// Names of textures in a folder, for a work that takes its time.
QStringList manyFiles(const QString& folder, int count);

} // namespace morvane::test
