#pragma once

// The program's own texts that more than one place shows (the window, the printed report, the
// command-line tool and the validation), each spelled once, and the message-box styles that go
// with them. Texts used in one place only stay at their use.

// The program's name: the window's caption and questions, the About box, the Open and Save
// dialogs' filter and the report's header.
inline constexpr char kProgramTitle[] = "TAVRO Channel and Overland Flow Analysis";
// The title of every error message.
inline constexpr char kErrorTitle[] = "Error";

// Validation faults of a number box or a rating-curve cell.
inline constexpr char kMissingDataMessage[] = "Missing data.";
inline constexpr char kNotNumericMessage[] = "Data is not numeric.";

// The columns of the rating curve, in the window's grid and the report's table: title and unit.
inline constexpr char kRatingDepthTitle[] = "Depth";
inline constexpr char kRatingDepthUnit[] = "(inches)";
inline constexpr char kRatingDischargeTitle[] = "Discharge Rate";
inline constexpr char kRatingDischargeUnit[] = "(cfs)";

// File errors: the fixed text, then the path on a line of its own.
inline constexpr char kUnableToOpenFileMessage[] = "Unable to open file:";
inline constexpr char kErrorWritingToFileMessage[] = "Error writing to file:";

// Message box styles, numbered as the message boxes of the old platform numbered them: the
// buttons in the low three bits, the icon in the next bits. The window uses 48 (exclamation and
// OK) for errors, 16 (critical stop and OK) for calculation failures and 3 (Yes, No, Cancel, no
// icon, first button the default) for the unsaved-data question.
namespace MessageStyle {
constexpr int OkOnly = 0;
constexpr int OkCancel = 1;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
constexpr int ButtonMask = 7;
constexpr int IconMask = 112;
} // namespace MessageStyle

// The button a message box returns, with the old platform's numbers.
namespace MessageAnswer {
constexpr int Ok = 1;
constexpr int Cancel = 2;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MessageAnswer
