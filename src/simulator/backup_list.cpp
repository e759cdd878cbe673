#include "simulator/backup_list.h"

#include "core/attempts.h"
#include "core/text_decoding.h"

namespace morvane {

namespace {

const QString missingWord = u"missing"_s, firstRunMark = u"first run\n"_s;

FilePath listFile(const Session& session, const QString& name) {
    return backupFolder(session, name) / u"backup.lst";
}

/// Below the backup: its folder there and its name.
QString pathOf(const FilePath& file) {
    return file.parent().fileName() + u'\\' + file.fileName();
}

} // namespace

FilePath backupFolder(const Session& session, const QString& name) {
    return (session.AppPath / u"Backup").child(name);
}

std::array<BackupPlace, 2> backupPlaces(const Session& session, const QString& name) {
    const FilePath folder = backupFolder(session, name);
    return {{{session.FSPath / u"Scenery\\World\\Texture", folder / u"Texture"},
             {session.FSPath / u"Scenery\\UTEurLC\\Texture", folder / u"UTEurLC"}}};
}

BackupList BackupList::read(Session& session, const QString& name) {
    BackupList list;
    try {
        list.parse(QString::fromUtf8(session.files.read(listFile(session, name))));
    } catch (const Error& error) {
        if (error.code() != ErrorCode::fileNotFound) throw;
    }
    return list;
}

BackupList BackupList::readIfReadable(Session& session, const QString& name) {
    BackupList list;
    attempt([&] { list = read(session, name); });
    return list;
}

void BackupList::parse(const QString& text) {
    isThere_ = true;
    isOfFirstRun_ = text == firstRunMark;
    for (const QString& line : splitLines(text)) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() != 3) continue;
        if (fields[0] == missingWord)
            ++missing_;
        else
            files_.insert(fields[2].toCaseFolded(), {fields[0].toLongLong(), fields[1]});
    }
}

void BackupList::write(Session& session, const QString& name) const {
    session.files.write(listFile(session, name), text_.toUtf8());
}

void BackupList::markFirstRun(Session& session, const QString& name) {
    session.files.write(listFile(session, name), firstRunMark.toUtf8());
}

void BackupList::add(const FilePath& file, const FileFingerprint& print) {
    text_ += QString::number(print.size) + u'\t' + print.checksum + u'\t' + pathOf(file) + u'\n';
}

void BackupList::addMissing(const FilePath& folder, const QString& name) {
    text_ += missingWord + u"\t\t"_s + folder.fileName() + u'\\' + name + u'\n';
}

bool BackupList::isDamaged(const FilePath& file, const FileFingerprint& print) const {
    const QString key = pathOf(file).toCaseFolded();
    return files_.contains(key) && !files_.contains(key, print);
}

} // namespace morvane
