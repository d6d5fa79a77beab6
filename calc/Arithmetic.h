#pragma once

#include "CalcContext.h"

#include <functional>
#include <string>

// Checked arithmetic of the calculation core. A step that would divide by zero, take the square
// root of a negative number or leave the double range raises an ArithmeticFault, which never
// leaves the core: runGuarded turns it into the calculation's failure message.

struct ArithmeticFault
{
    const char *reason; // "division by zero", "square root of a negative number" or "overflow"
};

// The failure message of an arithmetic fault: "Arithmetic error in the calculation: " + reason.
std::string arithmeticFaultMessage(const char *reason);
extern const char *const kOverflowFault; // "overflow"

double checkedDivide(double numerator, double denominator);
double checkedSqrt(double value);
double checkedPow(double base, double exponent);
// Returns `value`, or raises the overflow fault when it is not finite.
double checkedFinite(double value);

// Runs a procedure of the core; an arithmetic fault inside it sets
// context.CalculationErrorMessage to "Arithmetic error in the calculation: " + the reason and
// makes the result false.
bool runGuarded(CalcContext &context, const std::function<bool()> &procedure);
