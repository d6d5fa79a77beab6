#include "Arithmetic.h"

#include <cmath>

namespace {
constexpr const char *kDivisionByZero = "division by zero";
constexpr const char *kNegativeSquareRoot = "square root of a negative number";
} // namespace

const char *const kOverflowFault = "overflow";

std::string arithmeticFaultMessage(const char *reason)
{
    return std::string("Arithmetic error in the calculation: ") + reason;
}

double checkedFinite(double value)
{
    if (!std::isfinite(value))
        throw ArithmeticFault { kOverflowFault };
    return value;
}

double checkedDivide(double numerator, double denominator)
{
    if (denominator == 0.0)
        throw ArithmeticFault { kDivisionByZero };
    return checkedFinite(numerator / denominator);
}

double checkedSqrt(double value)
{
    if (value < 0.0)
        throw ArithmeticFault { kNegativeSquareRoot };
    return checkedFinite(std::sqrt(value));
}

double checkedPow(double base, double exponent)
{
    // A negative base with a fractional exponent has no real power: the same fault as a root.
    if (base < 0.0 && std::floor(exponent) != exponent)
        throw ArithmeticFault { kNegativeSquareRoot };
    return checkedFinite(std::pow(base, exponent));
}

bool runGuarded(CalcContext &context, const std::function<bool()> &procedure)
{
    try {
        return procedure();
    } catch (const ArithmeticFault &fault) {
        context.CalculationErrorMessage = arithmeticFaultMessage(fault.reason);
        return false;
    }
}
