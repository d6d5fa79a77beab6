#pragma once

#include "CalcContext.h"

#include <cmath>
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
extern const char *const kDivisionByZeroFault; // "division by zero"
extern const char *const kNegativeSquareRootFault; // "square root of a negative number"

// Raises the ArithmeticFault of `reason`.
[[noreturn]] void raiseArithmeticFault(const char *reason);

// Returns `value`, or raises the overflow fault when it is not finite.
inline double checkedFinite(double value)
{
    if (!std::isfinite(value))
        raiseArithmeticFault(kOverflowFault);
    return value;
}

inline double checkedDivide(double numerator, double denominator)
{
    if (denominator == 0.0)
        raiseArithmeticFault(kDivisionByZeroFault);
    return checkedFinite(numerator / denominator);
}

inline double checkedSqrt(double value)
{
    if (value < 0.0)
        raiseArithmeticFault(kNegativeSquareRootFault);
    return checkedFinite(std::sqrt(value));
}

// The general power routine, out of line on purpose: where the compiler sees a constant
// exponent of 2 it may square the base instead, and x * x differs from pow(x, 2.0) in the last
// bit for a few values in ten thousand, which would move the normal-depth search.
double checkedPow(double base, double exponent);

// Runs a procedure of the core; an arithmetic fault inside it sets
// context.CalculationErrorMessage to "Arithmetic error in the calculation: " + the reason and
// makes the result false.
bool runGuarded(CalcContext &context, const std::function<bool()> &procedure);
