#include "sets/undo_step.h"

#include "core/attempts.h"
#include "core/disk_spelling.h"
#include "core/flag_text.h"
#include "core/registry.h"
#include "sets/set_removal.h"
#include "sets/simulator_copy.h"

#include <QSet>
#include <algorithm>

namespace morvane {

namespace {

const QString wantedValue = u"KeepUndo"_s, savedFiles = u"Files"_s;

FilePath recordFile(const Session& session) {
    return undoFolder(session) / u"undo.lst";
}

void removeTree(FileSystem& files, const FilePath& folder) {
    const FilePath inside = folder.resolved();
    if (!files.isLink(inside)) { // what one points to is not ours
        for (const QString& inner : files.listFolders(inside))
            removeTree(files, inside.exactChild(inner));
        for (const FilePath& file : filesIn(files, inside, u"*"_s))
            files.remove(file);
    }
    removeFolderOrLink(files, inside);
}

/// Whether that file of ours can be had again where it came from: it was not written since, or has the same
/// bytes all the same.
bool isSourceOf(FileSystem& files, const FilePath& source, const OriginalFact& ours) {
    const auto stamp = files.stampIfThere(source);
    if (!stamp || stamp->size != ours.print.size) return false;
    if (ours.time && showsWritesFrom(ours.time, stamp->time)) return true;
    try {
        return fingerprintOf(files, source) == ours.print;
    } catch (const Error&) {
        return false;
    }
}

/// A file in its way, of an earlier step, goes.
void save(Session& session, const FilePath& file, const OriginalFact& stood) {
    const FilePath saved = savedForUndo(session) / stood.path;
    session.files.makeFolder(saved.parent());
    session.files.copyContents(file, saved);
}

/// Before its place is taken.
void saveWhatGoesForEver(Session& session, const std::vector<OriginalFact>& stood) {
    DiskSpelling spelling(session.files, session.AppPath), places(session.files, session.FSPath);
    for (const OriginalFact& fact : stood)
        if (fact.kind == FactKind::ours && !isSourceOf(session.files, spelling.find(fact.where), fact))
            save(session, places.findExactly(fact.path), fact);
}

/// That into this simulator.
std::optional<UndoRecord> stepHere(const Session& session, const QByteArray& bytes) {
    auto record = parseUndo(bytes, recordFile(session));
    return record && record->simulator == session.FSPath.native() ? record : std::nullopt;
}

} // namespace

UndoStep::UndoStep(Session& session) : session_(session), keeping_(session.state<UndoKeeping>()) {
    ++keeping_.depth;
}

UndoStep::~UndoStep() {
    if (--keeping_.depth > 0) return;
    keeping_.step = {};
    keeping_.isWritten = false;
}

void UndoStep::add(const QString& part) {
    UndoRecord& step = keeping_.step;
    if (step.parts.isEmpty()) {
        step.simulator = session_.FSPath.native();
        step.time = session_.clock.localTime();
        step.rows = keeping_.installedRows ? keeping_.installedRows(session_) : QJsonObject();
    }
    step.parts << part;
}

FilePath undoFolder(const Session& session) {
    return session.AppPath / u"Backup\\Undo";
}

FilePath savedForUndo(const Session& session) {
    return undoFolder(session) / savedFiles;
}

void keepForUndo(Session& session, const Originals& originals) {
    auto& keeping = session.state<UndoKeeping>();
    if (keeping.depth == 0) return;
    if (!keeping.isWritten) forgetLastStep(session);
    keeping.isWritten = true;
    if (!isUndoWanted(session)) return;
    QSet<QString> known;
    for (const OriginalFact& fact : keeping.step.stood)
        known.insert(fact.path);
    std::vector<OriginalFact> stood;
    for (const OriginalFact& fact : originals.stood())
        if (!known.contains(fact.path)) stood.push_back(fact);
    saveWhatGoesForEver(session, stood);
    if (keeping.step.stood.empty())
        keeping.step.stood.swap(stood);
    else
        keeping.step.stood.insert(keeping.step.stood.end(), stood.begin(), stood.end());
    session.files.makeFolder(undoFolder(session));
    session.files.write(recordFile(session), undoText(keeping.step));
}

void saveForUndo(Session& session, const QStringList& folders) {
    const auto record = lastStep(session);
    if (!record) return;
    const auto isIn = [&](const QString& path) {
        return std::ranges::any_of(folders, [&](const QString& folder) {
            return path.startsWith(folder + u'\\', Qt::CaseInsensitive);
        });
    };
    for (const OriginalFact& fact : record->stood) {
        if (fact.kind != FactKind::ours || !isIn(fact.where)) continue;
        const FilePath source = session.AppPath / fact.where;
        const bool isSource = attempt([&] { // one that cannot be read is no source
            if (fingerprintOf(session.files, source) != fact.print) throw Error(ErrorCode::fileNotFound);
        });
        if (isSource) save(session, source, fact);
    }
}

std::optional<UndoRecord> lastStep(const Session& session) {
    const auto bytes = session.files.readIfThere(recordFile(session));
    return bytes ? stepHere(session, *bytes) : std::nullopt;
}

bool canUndo(const Session& session) {
    const auto bytes = session.files.readIfThere(recordFile(session));
    if (!bytes) return false;
    const qsizetype facts = bytes->indexOf('\n', bytes->indexOf('\n') + 1) + 1;
    return stepHere(session, bytes->first(facts)).has_value();
}

void forgetLastStep(Session& session) {
    attempt([&] { session.files.remove(recordFile(session)); }); // none is fine
    removeTree(session.files, undoFolder(session));
}

bool isUndoWanted(const Session& session) {
    return ownValue(session.registry, wantedValue) != flagText(false);
}

void setUndoWanted(Session& session, bool isWanted) {
    storeOwnValue(session.registry, wantedValue, flagText(isWanted));
    if (!isWanted) forgetLastStep(session);
}

} // namespace morvane
