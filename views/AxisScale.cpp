#include "AxisScale.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

int AxisScale::intervals() const
{
    return static_cast<int>(std::lround((maximum - minimum) / step));
}

int AxisScale::decimals() const
{
    int places = 0;
    // Stop at six places: a step is never finer than a millionth of a foot here.
    while (places < 6) {
        const double scaled = step * std::pow(10.0, places);
        if (std::fabs(scaled - std::round(scaled)) < 1e-6 * std::max(1.0, scaled))
            break;
        ++places;
    }
    return places;
}

QString AxisScale::label(double value) const
{
    // -0.0 would print as "-0".
    const double shown = std::fabs(value) < step * 1e-9 ? 0.0 : value;
    return QString::number(shown, 'f', decimals());
}

AxisScale niceScale(double low, double high, int targetIntervals)
{
    if (!(high > low))
        high = low + 1;
    const double rough = (high - low) / std::max(1, targetIntervals);
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = 10 * power;
    for (const double factor : { 1.0, 2.0, 2.5, 5.0, 10.0 }) {
        if (factor * power >= rough * (1 - 1e-9)) {
            step = factor * power;
            break;
        }
    }
    AxisScale scale;
    scale.step = step;
    scale.minimum = std::floor(low / step + 1e-9) * step;
    scale.maximum = std::ceil(high / step - 1e-9) * step;
    if (scale.maximum <= scale.minimum)
        scale.maximum = scale.minimum + step;
    return scale;
}

QString quantityText(double value)
{
    const double magnitude = std::fabs(value);
    int decimals = 0;
    if (magnitude > 0 && magnitude < 100)
        decimals = std::clamp(2 - static_cast<int>(std::floor(std::log10(magnitude))), 0, 6);
    QLocale english(QLocale::English, QLocale::UnitedStates);
    if (magnitude >= 1000) {
        // Three significant figures, then grouped: 12345 -> 12,300.
        const double unit = std::pow(10.0, std::floor(std::log10(magnitude)) - 2);
        return english.toString(std::round(value / unit) * unit, 'f', 0);
    }
    return english.toString(value, 'f', decimals);
}
