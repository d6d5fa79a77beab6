#pragma once

#include <QString>

// A linear axis with round tick values: steps of 1, 2, 2.5 or 5 times a power of ten, so that
// an engineer reads the ticks at a glance.
struct AxisScale
{
    double minimum = 0;
    double maximum = 1;
    double step = 0.5;

    int intervals() const;
    // Decimals that show every tick exactly (0 for whole steps, 1 for 0.5, 2 for 0.25 ...).
    int decimals() const;
    QString label(double value) const;
};

// The scale with round ticks that covers [low, high] in about `targetIntervals` steps. An empty
// or inverted range is widened to one unit above `low`.
AxisScale niceScale(double low, double high, int targetIntervals);

// A quantity for a label: three significant figures, thousands grouped ("1,234 ft³" rather than
// "1234.4"), never in exponent form for the sizes of a swale.
QString quantityText(double value);
