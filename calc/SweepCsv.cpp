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

void appendField(std::string &line, const std::string &text)
{
    if (!line.empty())
        line += ',';
    line += csvField(text);
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

std::string sweepCsvHeader(const SweepResult &sweep, CsvHeader header)
{
    std::string line;
    for (const SweepAxis &axis : sweep.axes) {
        const std::string symbol = inputSymbol(axis.box);
        appendField(line,
                    header == CsvHeader::Symbols
                            ? symbol
                            : withUnit(inputCaptionWithSymbol(axis.box), inputBox(axis.box).unit));
    }
    appendField(line, "status");
    for (const ResultColumn &column : sweep.columns) {
        if (header == CsvHeader::Captions)
            appendField(line, withUnit(column.caption, column.unit));
        else
            appendField(line,
                        isSweptSymbol(sweep, column.key) ? column.key + "_result" : column.key);
    }
    appendField(line, "message");
    return line + "\n";
}

std::string sweepCsvRow(const SweepResult &sweep, const SweepRow &row)
{
    std::string line;
    for (double value : row.inputs)
        appendField(line, pointText(value));
    appendField(line, statusName(row.status));
    for (size_t c = 0; c < sweep.columns.size(); ++c)
        appendField(line, c < row.results.size() ? row.results[c] : std::string());
    appendField(line, row.message);
    return line + "\n";
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
