#pragma once

#include <cstdint>
#include <string>

// Number reading and display, the en-US rules of the input and output boxes.

// Removes leading and trailing blanks (spaces only).
std::string trimBlanks(const std::string &text);

// True when `text` reads as a number the way the input boxes accept one: optional blanks, an
// optional sign, an optional "$", digits with optional "," thousands separators and an optional
// "." fraction (at least one digit in all), an optional exponent, optional blanks.
bool isRecognisedNumber(const std::string &text);

// The leading decimal number of the trimmed text: optional sign, digits, optional "." and
// digits, optional exponent; stops at the first character that cannot continue the number and
// gives 0 when there are no digits. "1,500" gives 1: recognition and value are different rules.
double leadingNumber(const std::string &text);

// True when `text` is accepted as a number but its value is only its leading part, so that the
// box reads something else than the user sees: "1,500" is read as 1, "$5" as 0.
bool isReadInPart(const std::string &text);

// Rounds a double to single precision (round to nearest).
float RoundToSingle(double value);

// Display text of a single-precision value (output boxes): "%.7G" of the value widened to double.
std::string NumberToDisplayText(float value);
// Display text of a double (message texts): "%.15G".
std::string NumberToDisplayText(double value);
// Display text of a 32-bit integer: plain decimal.
std::string NumberToDisplayText(int32_t value);

// Trims blanks and puts a "0" before a text that starts with "."; "-.5" stays as it is.
std::string AddLeadingZero(const std::string &text);
