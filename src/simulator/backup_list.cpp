#include "simulator/backup_list.h"

#include "core/attempts.h"
#include "core/safe_copy.h"
#include "core/text_decoding.h"

namespace morvane {

namespace {

const QString missingWord = u"missing"_s, firstRunMark = u"first run\n"_s;

FilePath listFile(const Session& session, const QString& name) {
    return backupFolder(session, name) / u"backup.lst";
}

FilePath oursFile(const Session& session, const QString& name) {
    return backupFolder(session, name) / u"ours.lst";
}

/// Below the backup: its folder there and its name.
QString pathOf(const FilePath& file) {
    return file.parent().fileName() + u'\\' + file.fileName();
}

QString lineOf(const FilePath& file, const FileFingerprint& print) {
    return QString::number(print.size) + u'\t' + print.checksum.text() + u'\t' + pathOf(file) + u'\n';
}

/// By path without regard to case; those that are missing have none.
QMultiHash<QString, FileFingerprint> filesOf(const QString& text) {
    QMultiHash<QString, FileFingerprint> files;
    for (const QString& line : splitLines(text)) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() != 3) continue;
        const QString key = fields[0] == missingWord ? QString() : fields[2].toCaseFolded();
        files.insert(key, {fields[0].toLongLong(), CheckSum::ofHex(fields[1].toLatin1())});
    }
    return files;
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
    return of(session.files.readIfThere(listFile(session, name)),
              session.files.readIfThere(oursFile(session, name)));
}

BackupList BackupList::of(const std::optional<QByteArray>& list, const std::optional<QByteArray>& ours) {
    BackupList backup;
    if (list) backup.parse(QString::fromUtf8(*list));
    if (ours) backup.ours_ = filesOf(QString::fromUtf8(*ours));
    return backup;
}

BackupList BackupList::readIfReadable(Session& session, const QString& name) {
    BackupList list;
    attempt([&] { list = read(session, name); });
    return list;
}

void BackupList::parse(const QString& text) {
    isThere_ = true;
    isOfFirstRun_ = text == firstRunMark;
    files_ = filesOf(text);
    missing_ = static_cast<int>(files_.remove({}));
}

void BackupList::write(Session& session, const QString& name) const {
    writeDurably(session.files, listFile(session, name), text_.toUtf8());
}

void BackupList::writeOurs(Session& session, const QString& name) const {
    if (!oursText_.isEmpty()) writeDurably(session.files, oursFile(session, name), oursText_.toUtf8());
}

void BackupList::markFirstRun(Session& session, const QString& name) {
    writeDurably(session.files, listFile(session, name),
                 firstRunMark.toUtf8()); // torn it would say "complete"
}

/// Without a list it is a partial one, too.
void BackupList::markPartial(Session& session, const QString& name) {
    const FilePath list = listFile(session, name);
    if (!session.files.readIfThere(list)) return;
    BackupList partial;
    partial.addMissing(backupFolder(session, name), u"?"_s);
    if (!attempt([&] { partial.write(session, name); })) session.files.remove(list);
}

void BackupList::add(const FilePath& file, const FileFingerprint& print) {
    text_ += lineOf(file, print);
}

void BackupList::addOurs(const FilePath& file, const FileFingerprint& print) {
    oursText_ += lineOf(file, print);
}

void BackupList::addMissing(const FilePath& folder, const QString& name) {
    text_ += missingWord + u"\t\t"_s + folder.fileName() + u'\\' + name + u'\n';
}

bool BackupList::isDamaged(const FilePath& file, const FileFingerprint& print) const {
    const QString key = pathOf(file).toCaseFolded();
    return files_.contains(key) && !files_.contains(key, print);
}

bool BackupList::isOurs(const FilePath& file, const FileFingerprint& print) const {
    return ours_.contains(pathOf(file).toCaseFolded(), print);
}

} // namespace morvane
