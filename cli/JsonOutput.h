#pragma once

#include "Calculate.h"

#include <string>

// The --json output of swale-calc: one object on one line, ending in a newline.
//   {"status": "ok", "results": [t1, ..., t18], "checks": {...}}: the hydraulic checks as JSON
//   numbers (residence_time null for methods 3 and 4); "checks": null with "checks_fault": M
//   when they could not be computed
//   {"status": "invalid", "message": M}, plus "input": k or "row": r, "col": c
//   {"status": "failed", "messages": [m1, ...]}
//   {"status": "unreadable", "message": M}

std::string jsonOutcome(const CalculationOutcome &outcome);
std::string jsonUnreadable(const std::string &message);

// `text` (UTF-8) as a JSON string literal, quotes included.
std::string jsonString(const std::string &text);
