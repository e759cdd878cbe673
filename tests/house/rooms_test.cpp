#include "core/literals.h"
#include "support/testing.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace morvane {
namespace {

const QString root = QStringLiteral(MORVANE_SOURCE_DIR) + u'/';

QStringList linesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

struct Room {
    QString name, holds;
    QStringList below; ///< the rooms that it stands on; what those stand on is below it, too
};

/// A row of the table: name, rooms below, what it holds.
std::vector<Room> readRooms(const QStringList& lines) {
    std::vector<Room> rooms;
    for (const QString& line : lines.sliced(1)) {
        const QStringList fields = line.split(u'\t');
        EXPECT_EQ(fields.size(), 3) << line.toStdString();
        rooms.push_back({fields[0], fields[2], fields[1].split(u' ', Qt::SkipEmptyParts)});
    }
    return rooms;
}

class House {
public:
    explicit House(const std::vector<Room>& rooms) : rooms_(rooms) {
        for (const Room& room : rooms) {
            QSet<QString>& reached = reached_[room.name] = {room.name};
            for (const QString& below : room.below) {
                EXPECT_TRUE(reached_.contains(below)) << room.name.toStdString() << " stands above its row";
                reached |= reached_[below];
            }
        }
    }

    /// The innermost room that the file lies in; empty for none. `path` is below "src", or of the tools.
    QString roomOf(const QString& path) const {
        QString found;
        for (const Room& room : rooms_)
            if (path.startsWith(room.name + u'/') && room.name.size() > found.size()) found = room.name;
        return found;
    }
    bool mayInclude(const QString& path, const QString& included) const {
        return reached_.value(roomOf(path)).contains(roomOf(included));
    }

private:
    std::vector<Room> rooms_;
    QHash<QString, QSet<QString>> reached_;
};

const std::vector<Room>& rooms() {
    static const std::vector<Room> table = readRooms(linesOf(root + u"docs/rooms.tsv"_s));
    return table;
}

/// As the table knows it: from "src" on.
QString inHouse(const QString& file) {
    return file.startsWith(u"src/") ? file.mid(4) : file;
}

/// The tools include what lies beside them by its bare name.
QString includedFile(const QString& file, const QString& name) {
    const QString beside = file.section(u'/', 0, -2) + u'/' + name;
    if (!name.contains(u'/')) return QFile::exists(root + beside) ? inHouse(beside) : u"tools/"_s + name;
    return name;
}

TEST(Rooms, everyFileKeepsToTheRoomsBelow) {
    static const QRegularExpression include(u"^\\s*#\\s*include\\s+\"([^\"]+)\""_s);
    const House house(rooms());
    int includes = 0;
    for (const QString& folder : {u"src"_s, u"tools"_s})
        for (QDirIterator entry(root + folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                                QDirIterator::Subdirectories);
             entry.hasNext();) {
            const QString file = entry.next().mid(root.size());
            EXPECT_FALSE(house.roomOf(inHouse(file)).isEmpty()) << file.toStdString() << " lies in no room";
            for (const QString& line : linesOf(root + file)) {
                const QRegularExpressionMatch match = include.match(line);
                if (!match.hasMatch()) continue;
                ++includes;
                EXPECT_TRUE(house.mayInclude(inHouse(file), includedFile(file, match.captured(1))))
                    << file.toStdString() << ": " << line.toStdString();
            }
        }
    EXPECT_GT(includes, 1000) << "the files were not read";
}

TEST(Rooms, thePlanInTheDocumentIsThatOfTheTable) {
    const QString document = linesOf(root + u"docs/architecture.md"_s).join(u'\n');
    const auto idOf = [](QString name) { return name.replace(u'/', u'_'); };
    qsizetype arrows = 0;
    for (const Room& room : rooms()) {
        QStringList lines{u"    %1[\"%2\"]"_s.arg(idOf(room.name), room.name),
                          u"| `%1` | %2 |"_s.arg(room.name, room.holds)};
        for (const QString& below : room.below)
            lines << u"    %1 --> %2"_s.arg(idOf(room.name), idOf(below));
        for (const QString& line : lines)
            EXPECT_TRUE(document.contains(u'\n' + line + u'\n')) << "missing: " << line.toStdString();
        arrows += room.below.size();
    }
    EXPECT_EQ(document.count(u" --> "), arrows) << "and no others";
}

} // namespace
} // namespace morvane
