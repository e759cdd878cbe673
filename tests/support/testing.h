#pragma once

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <ostream>

// GoogleTest, and how it shows Qt's texts: found beside their own (global) types.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out) {
    *out << '[' << texts.join(QChar(u'|')).toStdString() << ']';
}
