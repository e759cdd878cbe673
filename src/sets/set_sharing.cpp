#include "sets/set_sharing.h"

#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/job.h"
#include "core/reading_limits.h"
#include "sets/set_kind.h"

#include <algorithm>

namespace morvane {

namespace {

/// The file is looked at before it is read: it may be anything that was dropped on a window.
SharedSet readLook(FileSystem& files, const FilePath& file) {
    if (files.isFolder(file) || files.size(file) > largestSharedSet) refuseLook(u"it is no look of a set"_s);
    return readSharedSet(files.read(file));
}

const SetKind& kindOf(Session& session, const SharedSet& shared) {
    const auto& kinds = session.state<KnownKinds>().kinds;
    const auto kind = std::ranges::find_if(
        kinds, [&](const SetKind* known) { return known->facts.word.toLower() == shared.kind; });
    if (kind == kinds.end()) refuseLook(u"it is of a kind that this Morvane does not know"_s);
    return **kind;
}

} // namespace

Reported exportSet(Session& session, const SetKind& kind, const QString& name, const FilePath& file,
                   const QString& author) {
    bool isWritten = false;
    const bool cameToItsEnd = reportFailures(session.user, morvaneError, [&] {
        SharedSet shared = kind.share(session, name);
        shared.author = author.trimmed();
        if (!mayReplace(session, file)) return;
        session.files.write(file, sharedSetBytes(shared));
        isWritten = true;
    });
    return cameToItsEnd && isWritten;
}

const SetKind* importSharedSet(Session& session, const FilePath& file) {
    Job job(session, u"import of a look"_s);
    if (!job) return nullptr;
    const SetKind* kind = nullptr;
    const FailureReport report{.prefix = u"Nothing is taken from %1: "_s.arg(file.fileName())};
    reportFailures(session.user, report, [&] {
        const SharedSet shared = readLook(session.files, file);
        const SetKind& known = kindOf(session, shared);
        if (known.receive(session, shared)) kind = &known;
    });
    return kind;
}

const SetKind* openLook(Session& session, const FilePath& file) {
    const SetKind* kind = importSharedSet(session, file);
    if (kind)
        session.user.tellDone(
            {u"%1 is in the list; \"Activate\" makes its files"_s.arg(kind->inHand(session).name)});
    return kind;
}

} // namespace morvane
