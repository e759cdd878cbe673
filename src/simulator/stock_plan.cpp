#include "simulator/stock_plan.h"

#include "core/numbers.h"
#include "ground/texture_catalogue.h"
#include "sets/resource_folders.h"

#include <QHash>

namespace morvane {

namespace {

constexpr qsizetype bucketLength = 3; ///< letters that no pattern leaves open
constexpr std::size_t lastCategory = 14;

const QString seasons[] = {u"sp"_s, u"su"_s, u"fa"_s, u"wi"_s};
const QStringList dutchClasses{u"005a2"_s, u"008a2"_s};

/// The names of a folder, found by their first letters.
class NameBuckets {
public:
    explicit NameBuckets(const QStringList& names) {
        for (const QString& name : names)
            buckets_[name.left(bucketLength).toLower()] << name;
    }
    QStringList matches(const QString& pattern) const {
        QStringList taken;
        for (const QString& season : seasons)
            for (const QString& name : buckets_.value(pattern.left(bucketLength).toLower()))
                if (matchesMask(name, pattern + season + u"*.bmp"_s)) taken << name;
        return taken;
    }

private:
    QHash<QString, QStringList> buckets_;
};

bool isNightName(const QString& name) {
    return name.size() > 7 && isDigits(name.first(3)) && name[3].isLetter() &&
           matchesMask(name, u"????2lm*.bmp"_s);
}

bool isDutchName(const QString& name) {
    for (const QString& dutch : dutchClasses)
        if (name.startsWith(dutch, Qt::CaseInsensitive)) return true;
    return false;
}

class StockPlanner {
public:
    StockPlanner(Session& session, const StockSource& source)
        : session_(session), source_(source), worldNames_(session.files.list(source.world, u"*.*"_s)),
          world_(worldNames_), addOn_(session.files.list(source.addOn, u"*.*"_s)) {}

    StockPlan plan() {
        for (std::size_t number = 1; number <= lastCategory; ++number)
            planCategory(number);
        planWhere(isNightName, true, u"Resources\\GENERIC WORLD NIGHT"_s, u"Resources\\DUTCH NIGHT"_s);
        // The bodies of the base install, where every install of a set looks for them.
        planWhere([](const QString& name) { return matchesMask(name, u"*.agn"); }, false, u"GENERIC WORLD"_s,
                  u"DUTCH"_s);
        return std::move(plan_);
    }

private:
    QString resourceFolder(const QString& name) const {
        for (const auto& row : resourceFolders(session_))
            if (row->ResourceName == name) return row->ResourceMVFolder;
        return {};
    }

    void planCategory(std::size_t number) {
        const CatalogueCategory& category = catalogueTable()[number - 1];
        const QString resource = QStringView(category.resourceName).toString();
        const QString folder = resourceFolder(resource);
        if (folder.isEmpty()) return;
        plan_.categories.push_back({QString::number(number) + u' ' + resource, 0, {}});
        const bool isAddOn = number == industrialCategory;
        const QStringView patterns = isAddOn ? industrialPatterns : category.patterns;
        for (const QString& pattern : patterns.toString().split(u' ')) {
            const QStringList names = (isAddOn ? addOn_ : world_).matches(pattern);
            if (names.isEmpty()) plan_.categories.back().emptyPatterns << pattern;
            for (const QString& name : names)
                add((isAddOn ? source_.addOn : source_.world), name, u"Resources\\"_s + folder, true);
        }
    }

    template <class Predicate>
    void planWhere(Predicate takes, bool isPicture, const QString& folder, const QString& dutchFolder) {
        for (const QString& into : {folder, dutchFolder}) {
            plan_.categories.push_back({into.section(u'\\', -1), 0, {}});
            if (!isPicture) plan_.categories.back().name += u" annotation"_s;
            for (const QString& name : worldNames_)
                if (takes(name) && (into == folder || isDutchName(name)))
                    add(source_.world, name, into, isPicture);
        }
    }

    void add(const FilePath& from, const QString& name, const QString& folder, bool isPicture) {
        const QString own = spelling(folder).value(name.toCaseFolded());
        const InstallFile target{folder, own.isEmpty() ? name : own, !own.isEmpty()};
        // Two spellings of a name in one folder are one file to the simulator.
        if (targets_.contains(target.path().toCaseFolded())) return;
        targets_.insert(target.path().toCaseFolded());
        plan_.files.push_back({from.exactChild(name), target, plan_.categories.size() - 1, isPicture});
    }

    const QHash<QString, QString>& spelling(const QString& folder) {
        if (!spellings_.contains(folder)) {
            QHash<QString, QString>& names = spellings_[folder];
            for (const QString& name : session_.files.list(session_.AppPath / folder, u"*.*"_s))
                names.insert(name.toCaseFolded(), name);
        }
        return spellings_[folder];
    }

    Session& session_;
    const StockSource& source_;
    QStringList worldNames_;
    NameBuckets world_, addOn_;
    QHash<QString, QHash<QString, QString>> spellings_;
    QSet<QString> targets_;
    StockPlan plan_;
};

} // namespace

StockPlan planStockImport(Session& session, const StockSource& source) {
    return StockPlanner(session, source).plan();
}

} // namespace morvane
