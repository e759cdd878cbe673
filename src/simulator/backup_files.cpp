#include "simulator/backup_files.h"

#include "core/error.h"
#include "core/failure_report.h"
#include "core/file_fingerprint.h"
#include "core/job.h"
#include "core/ordered_work.h"
#include "core/safe_copy.h"
#include "core/text_decoding.h"
#include "simulator/backups.h"
#include "simulator/simulator_copy.h"

#include <algorithm>
#include <deque>
#include <optional>

namespace morvane {

namespace {

const QString bitmaps = u"*.bmp"_s;

FilePath backupFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Backup").child(name);
}

FilePath listFile(const Session& session, const QString& name) {
    return backupFolder(session, name) / u"backup.lst";
}

FilePath worldTextures(const Session& session) {
    return session.FSPath / u"Scenery\\World\\Texture";
}

FilePath addOnTextures(const Session& session) {
    return session.FSPath / u"Scenery\\UTEurLC\\Texture";
}

/// Errors of one file are wanted to go unnoticed; false when there was one.
template <class Step>
bool tryStep(Step step) {
    try {
        step();
        return true;
    } catch (const Error&) {
        return false;
    }
}

bool isWanted(Session& session, bool isFirstRun) {
    if (!isFirstRun)
        return session.user.ask(
            Question::backup, u"Create New Backup?"_s,
            u"Do you wish Morvane to carry out a backup of your FS Textures?  This will "
            "create a new backup set that can be reinstalled at a later time if required"_s);
    session.user.showMessage(
        {MessageKind::information, u"Creating Backup"_s,
         u"Morvane has detected that this is the first time that Morvane has been started.  Morvane will now "
         "backup your Flight Simulator Textures.  Please Wait......."_s});
    return true;
}

/// The name of the new row's folder; empty after the message of a failure.
QString addBackupRow(Session& session) {
    if (!session.gBackups && !clsBackups::reload(session)) return {};
    clsBackup backup{u"Backup"_s, 0, session.clock.localTime(), true};
    return session.gBackups->UpdateBackups(backup) ? backup.BackupName : QString();
}

/// A folder of that name is another backup, of a store that was lost: it steps aside and is never written to.
void makeBackupFolders(Session& session, const QString& name) {
    const FilePath folder = backupFolder(session, name);
    if (session.files.exists(folder)) {
        int number = 1;
        const auto aside = [&] { return backupFolder(session, name + u" kept %1"_s.arg(number)); };
        while (session.files.exists(aside()))
            ++number;
        session.files.rename(folder, aside());
    }
    session.files.makeFolder(folder / u"Texture");
    session.files.makeFolder(folder / u"UTEurLC");
}

/// Advances the bar by equal steps and asks after each whether to go on.
template <class Step>
bool walkFiles(Session& session, const std::vector<FileCopy>& copies, const Job* cancellable, Step step) {
    const double share = 100.0 / static_cast<double>(copies.size() + 1);
    double position = 0;
    for (const FileCopy& copy : copies) {
        if (session.ExitInProgress.endsCopies() || (cancellable && cancellable->isCancelled())) return false;
        step(copy);
        session.user.updateProgress({}, {}, position += share);
    }
    return true;
}

struct CheckedFile {
    FileFingerprint print;
    bool stands; ///< the target has the same contents already
};

CheckedFile check(const FileCopy& copy) {
    NativeFileSystem files;
    const QByteArray contents = files.read(copy.source);
    const bool stands = files.exists(copy.target) && files.read(copy.target) == contents;
    return {fingerprintOf(contents), stands};
}

/// The sources in order, read, summed up and compared on the other cores while files before them are copied;
/// several at a time, as a thread for each small file would cost more than it saves.
class CheckAhead {
public:
    explicit CheckAhead(const std::vector<FileCopy>& copies)
        : work_(static_cast<int>((copies.size() + share - 1) / share), [&copies](int index) {
              Checked checked;
              const std::size_t first = static_cast<std::size_t>(index) * share;
              for (std::size_t i = first; i < std::min(first + share, copies.size()); ++i)
                  checked.push_back(tryCheck(copies[i]));
              return checked;
          }) {}

    /// Nothing for a file that cannot be read.
    std::optional<CheckedFile> next() {
        if (checked_.empty()) checked_ = work_.next();
        const std::optional<CheckedFile> file = checked_.front();
        checked_.pop_front();
        return file;
    }

private:
    static constexpr std::size_t share = 32;
    using Checked = std::deque<std::optional<CheckedFile>>;

    static std::optional<CheckedFile> tryCheck(const FileCopy& copy) {
        std::optional<CheckedFile> checked;
        tryStep([&] { checked = check(copy); });
        return checked;
    }

    OrderedWork<Checked> work_;
    Checked checked_;
};

void copyIntoBackup(Session& session, const Job& job, const QString& name) {
    std::vector<FileCopy> copies;
    for (const auto& [source, folder] :
         {std::pair{worldTextures(session), u"Texture"}, std::pair{addOnTextures(session), u"UTEurLC"}})
        for (const QString& file : session.files.list(source, bitmaps))
            copies.push_back({source.child(file), (backupFolder(session, name) / folder).exactChild(file)});
    CheckAhead sources(copies);
    QString list;
    const bool isWhole = walkFiles(session, copies, &job, [&](const FileCopy& copy) {
        const std::optional<CheckedFile> source = sources.next();
        if (!source) return;
        tryStep([&] {
            const FileFingerprint& print = source->print;
            replaceFile(session.files, copy.source, copy.target);
            list += QString::number(print.size) + u'\t' + print.checksum + u'\t' +
                    copy.target.parent().fileName() + u'\\' + copy.target.fileName() + u'\n';
        });
    });
    if (isWhole) tryStep([&] { session.files.write(listFile(session, name), list.toUtf8()); });
}

/// The check sums by path below the backup, without regard to case.
QHash<QString, FileFingerprint> readList(Session& session, const QString& name) {
    QHash<QString, FileFingerprint> prints;
    tryStep([&] {
        for (const QString& line :
             splitLines(QString::fromUtf8(session.files.read(listFile(session, name))))) {
            const QStringList fields = line.split(u'\t');
            if (fields.size() == 3)
                prints.insert(fields[2].toCaseFolded(), {fields[0].toLongLong(), fields[1]});
        }
    });
    return prints;
}

void copyBack(Session& session, const QString& name, std::vector<FileCopy> copies) {
    for (FileCopy& copy : copies)
        copy.target = copy.target.resolved();
    const QHash<QString, FileFingerprint> known = readList(session, name);
    SimulatorCopier copier(session);
    copier.clearStrays(copies);
    CheckAhead sources(copies);
    walkFiles(session, copies, nullptr, [&](const FileCopy& copy) {
        const std::optional<CheckedFile> source = sources.next();
        if (!source || source->stands) return;
        const QString path = copy.source.parent().fileName() + u'\\' + copy.source.fileName();
        const bool isDamaged = known.value(path.toCaseFolded(), source->print) != source->print;
        if (!isDamaged) tryStep([&] { copier.copy(copy); });
    });
}

} // namespace

void createBackup(Session& session, bool isFirstRun) {
    if (session.jobRunning || !isWanted(session, isFirstRun)) return;
    const Job job(session);
    if (!job) return;
    session.user.showMessage({MessageKind::information, u"Creating New Backup"_s,
                              u"Morvane is backing up your Flight Simulator Texture Files.  This may take a "
                              "few minutes.  Please wait......."_s,
                              false, true, true});
    session.user.updateProgress({}, {}, 0);
    if (const QString name = addBackupRow(session); !name.isEmpty())
        reportFailures(session.user, {}, [&] {
            makeBackupFolders(session, name);
            copyIntoBackup(session, job, name);
        });
    session.user.updateProgress({}, {}, 100);
}

void backupOnRequest(Session& session) {
    createBackup(session, false);
    session.user.hideMessage();
    session.user.refreshScreen(Screen::frm_Main);
}

bool isBackupComplete(Session& session, const QString& name) {
    return FilePath::isChildName(name) && session.files.exists(listFile(session, name));
}

void restoreBackup(Session& session, const QString& name) {
    const Job job(session);
    if (!job) return;
    reportFailures(session.user, {}, [&] {
        const FilePath folder = backupFolder(session, name);
        std::vector<FileCopy> copies;
        addFolderFiles(session, folder / u"Texture", bitmaps, worldTextures(session), copies);
        if (session.files.isFolder(session.FSPath / u"Scenery\\UTEurLC"))
            addFolderFiles(session, folder / u"UTEurLC", bitmaps, addOnTextures(session), copies);
        copyBack(session, name, std::move(copies));
    });
    session.user.updateProgress({}, {}, 100);
}

void restoreBackupOnRequest(Session& session) {
    if (!session.gBackups && !clsBackups::reload(session)) return;
    ModalState& modal = session.modal;
    modal.backups.clear();
    modal.chosenBackup.clear();
    modal.backupConfirmed = false;
    for (const auto& backup : *session.gBackups)
        modal.backups.push_back(
            {backup->BackupName, backup->BackupDateTime, isBackupComplete(session, backup->BackupName)});
    if (modal.backups.empty()) return;
    session.user.showModal(Screen::frm_BackupList);
    if (!modal.backupConfirmed || modal.chosenBackup.isEmpty()) return;
    // The double quote at the end belongs to the text.
    session.user.showMessage(
        {MessageKind::progress, u"Morvane Information"_s,
         u"Restoring backup "_s + modal.chosenBackup + u" to Flight Simulator.  Please stand by...\""_s,
         false, false, true});
    restoreBackup(session, modal.chosenBackup);
    session.user.hideMessage();
}

} // namespace morvane
