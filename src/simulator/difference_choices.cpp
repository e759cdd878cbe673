#include "simulator/difference_choices.h"

#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/job.h"
#include "core/numbers.h"
#include "sets/simulator_copy.h"
#include "simulator/restored_files.h"

namespace morvane {

namespace {

FileCopy copyOf(const Session& session, const CheckedPlace& place) {
    return {session.AppPath / place.where, session.FSPath / place.path};
}

/// A place whose step fails is left out, and costs no other.
void settleEach(const std::vector<CheckedPlace>& places, ChoiceReport& report,
                const std::function<bool(const CheckedPlace&)>& step) {
    for (const CheckedPlace& place : places) {
        bool isDone = false;
        attempt([&] { isDone = step(place); });
        report.done += isDone;
        if (!isDone) report.leftOut << place.path;
    }
}

void putOursBack(Session& session, const std::vector<CheckedPlace>& places, ChoiceReport& report) {
    std::vector<FileCopy> copies;
    copies.reserve(places.size());
    for (const CheckedPlace& place : places)
        copies.push_back(copyOf(session, place));
    SimulatorCopier copier(session);
    for (const FileCopy& copy : copies)
        attempt([&] { copier.layAside(copy); });
    copier.prepare(copies);
    settleEach(places, report, [&](const CheckedPlace& place) {
        copier.copy(copyOf(session, place));
        return true;
    });
    copier.finish();
}

void settle(Session& session, DifferenceChoice choice, const QStringList& paths, ChoiceReport& report) {
    Originals originals = originalsOf(session);
    std::vector<CheckedPlace> places;
    for (const CheckedPlace& place : originals.check(CheckDepth::changedFiles)) {
        if (!paths.contains(place.path, Qt::CaseInsensitive)) continue;
        if (place.differs())
            places.push_back(place);
        else
            report.leftOut << place.path;
    }
    if (choice == DifferenceChoice::putOursBack) return putOursBack(session, places, report);
    settleEach(places, report, [&](const CheckedPlace& place) {
        return choice == DifferenceChoice::takeAsMine ? originals.takeAsPilots(place.path)
                                                      : originals.putPilotsBack(place.path);
    });
}

} // namespace

std::optional<ChoiceReport> settleDifferences(Session& session, DifferenceChoice choice,
                                              const QStringList& paths) {
    const Job job(session, u"settling of differences"_s);
    if (!job) return std::nullopt;
    ChoiceReport report;
    if (!reportFailures(session.user, morvaneError, [&] { settle(session, choice, paths, report); }))
        return std::nullopt;
    const bool isTaken = choice == DifferenceChoice::takeAsMine;
    report.text = countText(report.done, u"file"_s) + (isTaken ? u" taken as your own"_s : u" put back"_s);
    if (!report.leftOut.isEmpty())
        session.user.showMessage(
            {MessageKind::information, u"In the Simulator Now"_s,
             u"These files were left as they are, as nothing is wrong with them, or what would "
             u"have to come is not there or not whole:\n"_s +
                 listedPaths(report.leftOut)});
    session.user.tellDone({report.text, {}, !report.leftOut.isEmpty()});
    return report;
}

} // namespace morvane
