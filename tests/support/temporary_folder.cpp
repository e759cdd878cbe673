#include "support/temporary_folder.h"

#include "core/literals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <stdexcept>

namespace morvane::test {

TemporaryFolder::TemporaryFolder() : directory_(QDir::tempPath() + u"/Çelik Ünal flygväder XXXXXX"_s) {
    if (!directory_.isValid()) throw std::runtime_error("no temporary folder");
}

void writeFile(const FilePath& path, const QByteArray& contents) {
    const QString native = path.native();
    QDir().mkpath(QFileInfo(native).path());
    QFile file(native);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        throw std::runtime_error("cannot write " + native.toStdString());
}

QByteArray readFile(const FilePath& path) {
    QFile file(path.native());
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.text().toStdString());
    return file.readAll();
}

} // namespace morvane::test
