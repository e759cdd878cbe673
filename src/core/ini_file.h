#pragma once

#include "core/file_system.h"

#include <QStringList>
#include <optional>

namespace morvane {

/// A text of sections in square brackets and lines of key=value, with the semantics of the system's private
/// profiles: names without regard to case, the first of equals wins, what is not understood is kept as it is.
class IniFile {
public:
    static IniFile parse(const QByteArray& bytes); ///< UTF-8 where valid, else Latin-1
    QByteArray toBytes() const;                    ///< UTF-8, CR LF

    bool hasSection(const QString& section) const;
    void addSection(const QString& section);
    /// The value as written behind the "=", without blanks at its ends; quotes still on.
    std::optional<QString> rawValue(const QString& section, const QString& key) const;
    void setRawValue(const QString& section, const QString& key, const QString& value);

    /// The value without surrounding quotes, cut at 511 characters, NULs turned to blanks, trimmed; "" when
    /// absent.
    QString text(const QString& section, const QString& key) const;
    /// The number at the text's beginning; 0 when there is none.
    int number(const QString& section, const QString& key) const;

private:
    struct Span {
        qsizetype first, end;
    };
    std::optional<Span> linesOf(const QString& section) const;
    qsizetype lineOf(const QString& section, const QString& key) const;
    QStringList lines_;
};

/// The file as it stands there; empty where it is missing. Raises where it cannot be read, or is larger than
/// `largestSettings`: what is not known is not to be written over.
IniFile loadIni(FileSystem& files, const FilePath& file);
/// The same, and empty where it cannot be read, too, as the system's profiles read.
IniFile readIni(FileSystem& files, const FilePath& file);
/// The number of one value of a file, and its text, as IniFile gives them.
int GetIniInt(FileSystem& files, const QString& section, const QString& key, const FilePath& file);
QString GetIniString(FileSystem& files, const QString& section, const QString& key, const FilePath& file);
/// Writes the value, making file, section and key when missing. 1 when done, 0 when the file was refused.
int WriteIni(FileSystem& files, const QString& section, const QString& key, const QString& value,
             const FilePath& file);

/// The value without one pair of quotes around it, single or double.
QString withoutQuotes(const QString& value);

} // namespace morvane
