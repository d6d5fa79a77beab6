#include "Arithmetic.h"

const char *const kOverflowFault = "overflow";
const char *const kDivisionByZeroFault = "division by zero";
const char *const kNegativeSquareRootFault = "square root of a negative number";

std::string arithmeticFaultMessage(const char *reason)
{
    return std::string("Arithmetic error in the calculation: ") + reason;
}

void raiseArithmeticFault(const char *reason)
{
    throw ArithmeticFault { reason };
}

double checkedPow(double base, double exponent)
{
    // A negative base with a fractional exponent has no real power: the same fault as a root.
    if (base < 0.0 && std::floor(exponent) != exponent)
        raiseArithmeticFault(kNegativeSquareRootFault);
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
