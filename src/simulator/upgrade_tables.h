#pragma once

#include "core/store_schema.h"

namespace morvane {

class Session;

/// Columns of the fields of a text file behind its first, in their order: those that the table had when the
/// files were shipped, whatever it has got since.
std::vector<SchemaColumn> shippedColumns(const QString& table);

/// The steps of the upgrade that change the store. Each looks first whether its table or column is there,
/// under exactly that name, and is one transaction: it is done whole or not at all.

/// Adds `STATE` to AIRPORTDATA and replaces its rows by those of the text file: a heading, then a row a line,
/// fields separated by ";", the first one an old key that is passed over. Numbers may be blank, for 0. A line
/// with too few fields raises "Subscript out of range".
void importAirportData(Session& session);
/// The same with `METAR_LAT` and `METAR_LONG` of DECODED_METAR. Flags are "True", "False" or numbers; an
/// empty one is false.
void importDecodedMetars(Session& session);
void dropCountries(Store& store);
void createTextureSwitch(Store& store);
/// The row of the resource folders for Dutch textures.
void addDutchResource(Store& store);
void seedNightSets(Store& store);
/// Adds `DUTCH` to TEXTURE_SETS, true for "Default"; false when it was there.
bool addDutchColumn(Store& store);

} // namespace morvane
