#pragma once

#include "HydraulicChecks.h"

#include <array>
#include <string>
#include <vector>

// The hydraulic checks as the reader sees them, shared by the window, the printed report and the
// command-line report: one line per quantity with its symbol, value, unit and, where a limit
// applies, the limit and the verdict in words.

struct CheckLine
{
    std::string quantity; // "Critical depth"
    std::string symbol; // "[dc]"
    std::string value; // display text; "" for a quantity the method does not have
    std::string unit; // "" for a number without unit
    std::string limit; // "" where no limit applies
    std::string verdict; // in words; "" where no limit applies
    bool fails = false; // the value fails its limit
    double number = 0; // the value at full precision, for JSON (0 for the regime)
    const char *key = ""; // "critical_depth": the name of the value in JSON and CSV
};

// The lines of `checks` (which must hold values: an empty fault).
std::vector<CheckLine> hydraulicCheckLines(const HydraulicChecks &checks);

// Typical permissible shear stress of a lining, for comparison with the boundary shear.
struct PermissibleShear
{
    const char *category; // consecutive linings share it
    const char *lining;
    double shear; // lb/ft2
};

extern const std::array<PermissibleShear, 16> kTypicalPermissibleShear;
// Where the table comes from, in one sentence.
extern const char *const kPermissibleShearSource;
extern const char *const kShearUnit; // "lb/ft²"

// Display text of a check's number: seven significant digits like the result boxes.
std::string checkValueText(double value);
