#include "core/file_helpers.h"

#include "core/attempts.h"
#include "core/failure_report.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <filesystem>

namespace morvane {

bool isSameFolder(const FilePath& one, const FilePath& other) {
    const auto pathOf = [](const FilePath& path) {
        return std::filesystem::path(path.native().toStdU16String());
    };
    std::error_code failure;
    return std::filesystem::equivalent(pathOf(one), pathOf(other), failure);
}

bool holdsSimulator(FileSystem& files, const QString& folder) {
    return !folder.isEmpty() && files.exists(FilePath(folder) / u"fs9.exe");
}

QString fileTimeText(const FilePath& path) {
    const QFileInfo info(path.native());
    if (!info.isFile() || !info.isReadable()) return {};
    return info.lastModified().toString(u"yyyy/MM/dd hh:mm") + u":00"_s;
}

QByteArray readBounded(FileSystem& files, const FilePath& path, std::int64_t most) {
    QByteArray contents;
    attempt([&] {
        if (QFileInfo(path.native()).isFile() && files.size(path) <= most) contents = files.read(path);
    });
    return contents;
}

Message unreadableFileMessage() {
    return {MessageKind::error, u"Morvane Error"_s, u"Error opening file"_s};
}

QString GetFileTime(Session& session, const FilePath& path) {
    QString text;
    const FailureReport report{u"Morvane Error"_s, MessageKind::exclamation, u"Function GetFileTime: "_s};
    reportFailures(session.user, report, [&] {
        text = fileTimeText(path);
        if (text.isEmpty()) session.user.showMessage(unreadableFileMessage());
    });
    return text;
}

QString GetSpecialFolder(int number) {
    constexpr int documents = 5;
    if (number != documents) return {};
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return folder.isEmpty() ? folder : QDir::toNativeSeparators(folder + u'/');
}

QString getFileVersionText(FileSystem& files, const FilePath& path) {
    // The fixed version record begins with this mark; its file version stands 8 bytes behind, as two pairs of
    // little-endian numbers, the higher one of each pair last.
    static const QByteArray mark("\xbd\x04\xef\xfe", 4);
    QByteArray contents;
    try {
        contents = files.read(path);
    } catch (const Error&) {
        return {};
    }
    const qsizetype at = contents.indexOf(mark);
    if (at < 0 || at + 16 > contents.size()) return {};
    const auto part = [&](qsizetype offset) {
        const auto byte = [&](qsizetype i) { return static_cast<unsigned char>(contents.at(i)); };
        return byte(at + offset) + 256 * byte(at + offset + 1);
    };
    return u"%1.%2.%3.%4"_s.arg(part(10)).arg(part(8)).arg(part(14)).arg(part(12));
}

bool mayReplace(Session& session, const FilePath& file) {
    return !session.files.exists(file) ||
           session.user.ask(Question::replaceFile, u"Morvane Information"_s,
                            u"%1 is there already. Write over it?"_s.arg(file.text()));
}

int versionPart(const QString& version, int index) {
    return version.split(u'.').value(index).toInt();
}

} // namespace morvane
