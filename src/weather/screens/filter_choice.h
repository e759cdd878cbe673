#pragma once

#include <QComboBox>

namespace morvane {

/// A list of values that a search can be narrowed to, "Any" the first. It shows them in upper case and gives
/// them as they are stored, which stand under `Qt::UserRole`.
class FilterChoice : public QComboBox {
    Q_OBJECT
public:
    explicit FilterChoice(QWidget* parent);

    /// Replaces the values and selects "Any".
    void setValues(const QStringList& values);
    /// The value chosen; empty for "Any".
    QString value() const { return currentData().toString(); }
};

} // namespace morvane
