#pragma once

#include "sets/original_records.h"
#include "sets/originals_search.h"

namespace morvane {

/// The list of one simulator's folder, as records in memory and as a journal on the disk. Nothing is written
/// before the first fact is.
class OriginalsList {
public:
    /// `folder`: "Backup\Originals". Raises as findOriginals does.
    OriginalsList(FileSystem& files, const FilePath& simulator, const FilePath& folder);

    OriginalRecords& records() { return records_; }
    const OriginalRecords& records() const { return records_; }
    /// Where this simulator's files are kept, below "Backup\Originals": see OriginalsChoice.
    const QString& prefix() const { return prefix_; }

    /// Notes the facts and hands them to the system before it returns. What they say of what stood there
    /// before us is on the disk then: kept files have to be there already.
    void add(const std::vector<OriginalFact>& facts);
    /// A file goes by another spelling now. In memory; the next write is of the whole list.
    void rename(const QString& from, const QString& to);
    /// Writes the list anew: what the records say and no more.
    void write();

private:
    void append(const std::vector<OriginalFact>& facts);
    void outlastACut(const std::vector<OriginalFact>& facts);
    FilePath file(const QString& name) const { return folder_ / (prefix_ + name); }

    FileSystem& files_;
    FilePath simulator_, folder_;
    QString prefix_;
    bool isOnDisk_; ///< as the records are, but for a torn line
    QByteArray left_;
    OriginalRecords records_;
};

} // namespace morvane
