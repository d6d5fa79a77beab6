#include "JsonOutput.h"

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
        out += ", \"input\": " + std::to_string(fault.input);
        break;
    case FaultPlace::GridCell:
        out += ", \"row\": " + std::to_string(fault.row)
                + ", \"col\": " + std::to_string(fault.col);
        break;
    case FaultPlace::None:
        break;
    }
    return out + "}\n";
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
                + "}\n";
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
