#include "start_record.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace morvane {

namespace {

QString recordFile(const QString& folder) {
    return folder + QStringLiteral("/fs9.starts.jsonl");
}

} // namespace

bool recordStart(const QString& folder, const QString& program, const QStringList& arguments,
                 const QString& workingFolder) {
    const QJsonObject start{{QStringLiteral("program"), program},
                            {QStringLiteral("arguments"), QJsonArray::fromStringList(arguments)},
                            {QStringLiteral("workingFolder"), workingFolder}};
    const QByteArray line = QJsonDocument(start).toJson(QJsonDocument::Compact) + '\n';
    QFile record(recordFile(folder));
    return record.open(QIODevice::Append) && record.write(line) == line.size();
}

QByteArrayList recordedStarts(const QString& folder) {
    QFile record(recordFile(folder));
    if (!record.open(QIODevice::ReadOnly)) return {};
    QByteArrayList lines = record.readAll().split('\n');
    lines.removeLast(); // empty, or half a line
    return lines;
}

} // namespace morvane
