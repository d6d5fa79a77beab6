#include "SweepCsv.h"

#include "InputTable.h"

#include <algorithm>

namespace {
std::string withUnit(const std::string &caption, const std::string &unit)
{
    return unit.empty() ? caption : caption + " (" + unit + ")";
}

bool isSweptSymbol(const SweepResult &sweep, const std::string &symbol)
{
    return std::any_of(sweep.axes.begin(), sweep.axes.end(),
                       [&](const SweepAxis &axis) { return inputSymbol(axis.box) == symbol; });
}

} // namespace

std::string csvField(const std::string &text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    return quoted + "\"";
}

std::vector<std::string> sweepHeaderFields(const SweepResult &sweep, CsvHeader header)
{
    std::vector<std::string> fields;
    for (const SweepAxis &axis : sweep.axes) {
        fields.push_back(header == CsvHeader::Symbols ? inputSymbol(axis.box)
                                                      : withUnit(inputCaptionWithSymbol(axis.box),
                                                                 inputBox(axis.box).unit));
    }
    fields.push_back("status");
    for (const ResultColumn &column : sweep.columns) {
        if (header == CsvHeader::Captions)
            fields.push_back(withUnit(column.caption, column.unit));
        else
            fields.push_back(isSweptSymbol(sweep, column.key) ? column.key + "_result"
                                                              : column.key);
    }
    fields.push_back("message");
    return fields;
}

std::vector<std::string> sweepRowFields(const SweepResult &sweep, const SweepRow &row)
{
    std::vector<std::string> fields;
    for (double value : row.inputs)
        fields.push_back(pointText(value));
    fields.push_back(statusName(row.status));
    for (size_t c = 0; c < sweep.columns.size(); ++c)
        fields.push_back(c < row.results.size() ? row.results[c] : std::string());
    fields.push_back(row.message);
    return fields;
}

std::string csvLine(const std::vector<std::string> &fields)
{
    std::string line;
    for (size_t i = 0; i < fields.size(); ++i)
        line += (i ? "," : "") + csvField(fields[i]);
    return line + "\n";
}

std::string sweepCsvHeader(const SweepResult &sweep, CsvHeader header)
{
    return csvLine(sweepHeaderFields(sweep, header));
}

std::string sweepCsvRow(const SweepResult &sweep, const SweepRow &row)
{
    return csvLine(sweepRowFields(sweep, row));
}

std::string sweepCsv(const SweepResult &sweep, CsvHeader header)
{
    std::string text = sweepCsvHeader(sweep, header);
    for (const SweepRow &row : sweep.rows) {
        if (row.status != PointStatus::NotRun)
            text += sweepCsvRow(sweep, row);
    }
    return text;
}
