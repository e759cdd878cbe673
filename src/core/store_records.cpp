#include "core/store_records.h"

namespace morvane {

namespace {

const QString dateForm = u"yyyy/MM/dd HH:mm:ss"_s;

} // namespace

bool hasStore(const Session& session) {
    return session.adoConn && session.adoConn->isOpen();
}

Store& connectedStore(const Session& session) {
    if (!session.adoConn) throw Error(ErrorCode::storeFailure, u"it is not open"_s);
    return *session.adoConn;
}

Reported reportInSystemBox(UserInterface& user, const std::function<void()>& routine) {
    try {
        routine();
        return true;
    } catch (const std::exception& error) {
        user.systemBox(QString::fromUtf8(error.what()), QString(), SystemBoxButtons::ok);
        return false;
    }
}

QString nameBehindKey(std::int16_t key, const QString& name) {
    return QString::number(key) + u'-' + name;
}

std::int16_t readNewestKey(Store& store, const NewestKey& newestKey) {
    return RowSet(store, newestKey.statement).integer(newestKey.field);
}

void readField(const RowSet& row, const QString& column, QString& value) {
    value = row.text(column);
}

void readField(const RowSet& row, const QString& column, bool& value) {
    value = row.flag(column);
}

void readField(const RowSet& row, const QString& column, std::int16_t& value) {
    value = row.integer(column);
}

void readField(const RowSet& row, const QString& column, QDateTime& value) {
    value = QDateTime::fromString(row.text(column), dateForm);
}

void writeField(RowSet& row, const QString& column, const QString& value) {
    row.setText(column, value);
}

void writeField(RowSet& row, const QString& column, bool value) {
    row.setFlag(column, value);
}

void writeField(RowSet& row, const QString& column, std::int16_t value) {
    row.setNumber(column, value);
}

void writeField(RowSet& row, const QString& column, const QDateTime& value) {
    row.setText(column, value.toString(dateForm));
}

QString localNumbers(const QString& stored, TextForm form, const QString& decimalSep) {
    QString local = stored;
    const bool isAsStored = form != TextForm::localNumbers || decimalSep.isEmpty();
    return isAsStored ? local : local.replace(u'.', decimalSep);
}

QString storedNumbers(const QString& local, TextForm form, const QString& decimalSep) {
    QString stored = local;
    return form == TextForm::plain || decimalSep.isEmpty() ? stored : stored.replace(decimalSep, u"."_s);
}

} // namespace morvane
