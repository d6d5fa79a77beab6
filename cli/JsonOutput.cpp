#include "JsonOutput.h"

#include "HydraulicCheckLines.h"
#include "HydraulicChecks.h"
#include "NumberText.h"

#include <cstdio>

namespace {
std::string jsonStringArray(const std::string *first, const std::string *last)
{
    std::string out = "[";
    for (const std::string *text = first; text != last; ++text) {
        if (text != first)
            out += ", ";
        out += jsonString(*text);
    }
    return out + "]";
}

std::string jsonFault(const ValidationFault &fault)
{
    std::string out = "{\"status\": \"invalid\", \"message\": " + jsonString(fault.message);
    switch (fault.place) {
    case FaultPlace::InputBox:
        out += ", \"input\": " + NumberToDisplayText(static_cast<int32_t>(fault.input));
        break;
    case FaultPlace::GridCell:
        out += ", \"row\": " + NumberToDisplayText(static_cast<int32_t>(fault.row))
                + ", \"col\": " + NumberToDisplayText(static_cast<int32_t>(fault.col));
        break;
    case FaultPlace::None:
        break;
    }
    return out + "}\n";
}

// A finite double at full precision: 17 significant digits read back to the same double.
std::string jsonNumber(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

// The "checks" member of an "ok" object; when the checks could not be computed, "checks" is
// null and "checks_fault" gives the reason.
std::string jsonChecks(const SwaleInputData &record)
{
    const HydraulicChecks c = computeHydraulicChecks(record);
    if (!c.fault.empty())
        return ", \"checks\": null, \"checks_fault\": " + jsonString(c.fault);
    // The keys, order and values of the checks' display lines; numbers at full precision.
    std::string out = ", \"checks\": {";
    const char *separator = "";
    for (const CheckLine &line : hydraulicCheckLines(c)) {
        std::string value = jsonNumber(line.number);
        if (line.key == std::string("regime"))
            value = jsonString(line.value);
        else if (line.value.empty())
            value = "null"; // no residence time without a channel length
        out += separator + ("\"" + std::string(line.key) + "\": ") + value;
        separator = ", ";
    }
    return out + "}";
}
} // namespace

std::string jsonString(const std::string &text)
{
    std::string out = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
                out += escaped;
            } else {
                out += c; // UTF-8 passes through unchanged
            }
        }
    }
    return out + "\"";
}

std::string jsonOutcome(const CalculationOutcome &outcome)
{
    switch (outcome.status) {
    case CalculationOutcome::Status::Ok:
        return "{\"status\": \"ok\", \"results\": "
                + jsonStringArray(outcome.results.data() + 1,
                                  outcome.results.data() + outcome.results.size())
                + jsonChecks(outcome.record) + "}\n";
    case CalculationOutcome::Status::Invalid:
        return jsonFault(outcome.fault);
    case CalculationOutcome::Status::Failed:
        break;
    }
    const std::vector<std::string> &messages = outcome.failureMessages;
    return "{\"status\": \"failed\", \"messages\": "
            + jsonStringArray(messages.data(), messages.data() + messages.size()) + "}\n";
}

std::string jsonUnreadable(const std::string &message)
{
    return "{\"status\": \"unreadable\", \"message\": " + jsonString(message) + "}\n";
}
