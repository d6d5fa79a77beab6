#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Number reading and display, the en-US rules of the input and output boxes. Every box, the
// report, the files and swale-calc read and write numbers through these functions only.

// Removes leading and trailing blanks (spaces only).
std::string trimBlanks(const std::string &text);
// True when the text holds nothing but blanks.
bool isBlank(std::string_view text);

// What an input box holds, read in one scan of its text.
struct NumberReading
{
    enum class Kind {
        Blank, // nothing but blanks
        NotNumeric, // not a number by the rules of isRecognisedNumber
        Number, // a recognised number; `value` is its leading number
    };
    Kind kind = Kind::Blank;
    double value = 0.0;
};

// Trims the text, recognises it and reads its leading number in one pass: the same answers as
// trimBlanks, isRecognisedNumber and leadingNumber one after the other.
NumberReading readNumberText(std::string_view text);

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

// The whole value of a recognised number with its "," separators and "$" dropped ("$1,500.5"
// gives 1500.5), for the settings files; nothing when the text is not recognised.
std::optional<double> recognisedNumberValue(const std::string &text);

// Rounds a double to single precision (round to nearest).
float RoundToSingle(double value);

// Display text of a single-precision value (output boxes): "%.7G" of the value widened to double.
std::string NumberToDisplayText(float value);
// Display text of a double (message texts): "%.15G".
std::string NumberToDisplayText(double value);
// Display text of a 32-bit integer: plain decimal.
std::string NumberToDisplayText(int32_t value);

// Trims blanks and puts a "0" before a text that starts with "."; "-.5" stays as it is.
std::string AddLeadingZero(std::string text);
