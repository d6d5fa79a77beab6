#pragma once

#include "Sweep.h"

#include <string>
#include <vector>

// What heads the columns of a sweep's CSV: the symbols (swale-calc --sweep) or the captions with
// their units (the design explorer's export).
enum class CsvHeader { Symbols, Captions };

// One CSV field: quoted, with its quotes doubled, when it holds a comma, a quote or a line break.
std::string csvField(const std::string &text);

// The column names of a sweep's table: the swept inputs, "status", the result columns,
// "message". A result whose symbol is also a swept input's gets the suffix "_result".
std::vector<std::string> sweepHeaderFields(const SweepResult &sweep, CsvHeader header);
// The fields of one point: the inputs as typed, the status, the result texts as the results
// page shows them ("" where the point has none) and the message.
std::vector<std::string> sweepRowFields(const SweepResult &sweep, const SweepRow &row);

// The fields as one CSV line ending with "\n".
std::string csvLine(const std::vector<std::string> &fields);
std::string sweepCsvHeader(const SweepResult &sweep, CsvHeader header);
std::string sweepCsvRow(const SweepResult &sweep, const SweepRow &row);

// The header and every calculated row; rows a cancelled sweep did not reach are left out.
std::string sweepCsv(const SweepResult &sweep, CsvHeader header);
