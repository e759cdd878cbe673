#include "ground/tropical_files.h"

#include "ground/ground_sets.h"
#include "sets/set_names.h"

namespace morvane {

QStringList tropicalPatterns(TropicalForm form) {
    const QString variant = form == TropicalForm::b ? u"b2"_s : u"h2"_s;
    QStringList patterns;
    for (const int landClass : {4, 5, 7, 8, 29, 31, 33, 35, 37, 39, 41, 43, 45, 47})
        patterns << u"%1"_s.arg(landClass, 3, 10, QChar(u'0')) + variant;
    return patterns;
}

std::vector<FilePath> tropicalFiles(Session& session, TropicalForm form, const QString& groundName) {
    const QStringList patterns = tropicalPatterns(form);
    std::vector<FilePath> found;
    const auto collect = [&](const FilePath& folder, const QString& ending) {
        QStringList names;
        collectPatternFiles(session, folder, patterns, ending, names);
        for (const QString& name : names)
            found.push_back(folder.child(name));
    };
    const FilePath generic = session.AppPath / u"GENERIC WORLD";
    const FilePath source =
        groundName == defaultSetName ? generic : groundSetFolder(session, groundName) / u"Texture";
    for (const QString& ending : {u"sp*.bmp"_s, u"su*.bmp"_s, u"fa*.bmp"_s, u"wi*.bmp"_s})
        collect(source, ending);
    collect(generic, u"an*.agn"_s);
    return found;
}

QString tropicalName(const QString& name) {
    const qsizetype variant = name.indexOf(u'b', 0, Qt::CaseInsensitive);
    return variant < 0 ? name : QString(name).replace(variant, 1, u'h');
}

void collectPatternFiles(Session& session, const FilePath& folder, const QStringList& patterns,
                         const QString& ending, QStringList& names) {
    const QStringList present = session.files.list(folder, u"*"_s + ending);
    for (const QString& pattern : patterns)
        for (const QString& name : present)
            if (matchesMask(name, pattern + ending)) names << name;
}

} // namespace morvane
