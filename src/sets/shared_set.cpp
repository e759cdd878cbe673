#include "sets/shared_set.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/numbers.h"
#include "core/reading_limits.h"
#include "sets/cloud_cover.h"
#include "sets/colour_settings.h"
#include "sets/set_names.h"

#include <QJsonArray>
#include <QJsonObject>

namespace morvane {

namespace {

constexpr int newestVersion = 1;
constexpr qsizetype mostColours = 10;
const QString versionKey = u"morvaneset"_s, coloursKey = u"colours"_s;

struct TextField {
    QString key;
    QString SharedSet::*text;
};

const std::array<TextField, 6>& textFields() {
    static const std::array<TextField, 6> fields{{{u"kind"_s, &SharedSet::kind},
                                                  {u"name"_s, &SharedSet::name},
                                                  {u"cover"_s, &SharedSet::cover},
                                                  {u"baseSet"_s, &SharedSet::baseSet},
                                                  {u"description"_s, &SharedSet::description},
                                                  {u"author"_s, &SharedSet::author}}};
    return fields;
}

QString textOf(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object[key];
    if (!value.isString() && !value.isUndefined()) refuseLook(u"its \"%1\" is no text"_s.arg(key));
    return value.toString().trimmed();
}

void checkVersion(const QJsonObject& object) {
    const int version = object[versionKey].toInt();
    if (version < 1) refuseLook(u"it is no look of a set"_s);
    if (version > newestVersion) refuseLook(u"it was written by a newer Morvane"_s);
}

QStringList coloursOf(const QJsonObject& object) {
    QStringList colours;
    const QJsonArray texts = object[coloursKey].toArray();
    if (texts.isEmpty() || texts.size() > mostColours) refuseLook(u"it has no colours"_s);
    for (const auto& text : texts)
        colours << (text.isString() ? text.toString() : QString());
    return colours;
}

} // namespace

void refuseLook(const QString& reason) {
    throw Error::withDescription(ErrorCode::invalidPropertyValue, reason);
}

QByteArray sharedSetBytes(const SharedSet& set) {
    QJsonObject object{{versionKey, newestVersion}, {coloursKey, QJsonArray::fromStringList(set.colours)}};
    for (const TextField& field : textFields())
        if (!(set.*field.text).isEmpty()) object[field.key] = set.*field.text;
    return QJsonDocument(object).toJson();
}

SharedSet readSharedSet(const QByteArray& bytes) {
    if (bytes.size() > largestSharedSet) refuseLook(u"it is too large for a look of a set"_s);
    const QJsonObject object = parseJson(bytes).object();
    checkVersion(object);
    SharedSet set;
    for (const TextField& field : textFields())
        set.*field.text = textOf(object, field.key);
    set.colours = coloursOf(object);
    return set;
}

QString checkedCover(const SharedSet& set) {
    if (!cloudCover(set.cover)) refuseLook(u"its cloud cover is none"_s);
    return set.cover;
}

ColourValues checkedColours(const SharedSet& set) {
    try {
        const ColourValues colours = parseColourSettings(set.colours.first());
        if (set.colours.size() == 1 && areWithinSliders(colours)) return colours;
    } catch (const Error&) { // told below
    }
    refuseLook(damagedColours);
}

QString nameWithoutKey(const QString& name) {
    const qsizetype dash = name.indexOf(u'-');
    return dash > 0 && isDigits(name.left(dash)) ? name.mid(dash + 1) : name;
}

QString sharedDescription(const SharedSet& set) {
    QStringList lines{set.description};
    if (!set.author.isEmpty()) lines << u"By "_s + set.author;
    return lines.join(u'\n').trimmed().left(longestDescription);
}

} // namespace morvane
