#pragma once

#include "sets/original_facts.h"

#include <QMap>
#include <functional>
#include <optional>

namespace morvane {

/// All that is known of one file of the simulator.
struct OriginalRecord {
    std::vector<OriginalFact>
        kept; ///< oldest first: the pilot's, each kept before a copy of ours replaced it
    std::vector<OriginalFact> ours; ///< newest last; several where a run did not come to its end
    /// All that is known beside the path of a fact of the other kinds.
    struct Mark {
        unsigned mode = 0;
        QDate day = {};
    };
    std::optional<Mark> added, takenMode, madeFolder;

    /// A fact says that we put a file of those contents there.
    bool isOurs(const FileFingerprint& print) const;
    /// The pilot's youngest has those contents.
    bool isKept(const FileFingerprint& print) const;
    /// One of the pilot's has.
    bool wasKept(const FileFingerprint& print) const;
};

/// The facts of a list by the files that they are about.
class OriginalRecords {
public:
    void apply(OriginalFact fact);
    OriginalRecord& operator[](const QString& path) { return records_[path]; }
    bool contains(const QString& path) const { return records_.contains(path); }
    /// The path, in one text with its record's where it has one: thousands are kept in more than one place.
    QString oneText(const QString& path) const;
    /// The record of that path; an empty one when nothing is known of it.
    const OriginalRecord& of(const QString& path) const;
    /// What was noted under one spelling goes by the other from now on.
    void rename(const QString& from, const QString& to);

    const QMap<QString, OriginalRecord>& all() const { return records_; }
    /// The facts that make the same records.
    void tellFacts(const std::function<void(const OriginalFact&)>& tell) const;

private:
    QMap<QString, OriginalRecord> records_;
};

} // namespace morvane
