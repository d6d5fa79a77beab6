#pragma once

#include <cstdint>
#include <string>

// Page margins of the printed report, kept in "Margins.ini" in the program folder. The program
// only reads that file; whoever installs the program may edit it.
extern const char *const kMarginsFile; // "Margins.ini"

// Scale codes of the margins, the printer scale-mode numbers of the file's original platform.
constexpr int16_t kScaleInches = 5;
constexpr int16_t kScaleMillimetres = 6;

// The page-margins record. Which edge each margin stands for is the report's choice:
// Margin1 left, Margin2 top, Margin3 bottom, Margin4 right (so that the file's lines 2 to 5,
// read crossed, give left, top, right, bottom).
struct PageMargins
{
    int16_t ScaleCode = kScaleInches;
    float Margin1 = 0.5f; // left, in the unit of ScaleCode
    float Margin2 = 0.5f; // top
    float Margin3 = 0.5f; // bottom
    float Margin4 = 0.5f; // right
};

// Sets `margins` to the defaults (inches, 0.5 on every edge), then reads the five integer lines
// of `path`: the unit (1 for thousandths of an inch, anything else for hundredths of a
// millimetre), then margins 1, 2, 4 and 3 in that unit. The record takes the file's values only
// when all five lines were read; a missing, short or damaged file leaves the defaults and
// returns false, with no message.
bool ReadPageMargins(const std::string &path, PageMargins &margins);

// A margin of the record in points (1/72 inch).
double marginInPoints(const PageMargins &margins, float margin);
