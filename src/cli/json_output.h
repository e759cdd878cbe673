#pragma once

#include "sets/catalogue_file.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace morvane {

struct clsWxFinder;
struct clsTextureSet;
struct CatalogueFile;
struct clsNightTextureSet;
struct clsSkyTextureSet;
struct clsSkyTextureSubSet;

/// Records as JSON, properties by their names.
QJsonObject toJson(const clsWxFinder& report);
/// Numbers of a colour text come with "." whatever separator the record holds.
QJsonObject toJson(const clsTextureSet& set, const QString& decimalSeparator);
QJsonObject toJson(const clsNightTextureSet& set, const QString& decimalSeparator);
QJsonObject toJson(const clsSkyTextureSet& set, const QString& decimalSeparator);
QJsonObject toJson(const clsSkyTextureSubSet& subSet);
/// The catalogue's four parallel arrays.
QJsonObject toJson(const std::vector<CatalogueFile>& files);

/// One line, UTF-8, on stdout.
void printJson(const QJsonDocument& document);

} // namespace morvane
