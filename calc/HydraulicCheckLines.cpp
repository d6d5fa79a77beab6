#include "HydraulicCheckLines.h"

#include "NumberText.h"

#include <cfloat>
#include <cmath>
#include <cstdio>

// Chen, Y. H. and Cotton, G. K. (1988), Design of Roadside Channels with Flexible Linings,
// Hydraulic Engineering Circular No. 15, FHWA-IP-87-7, Table 2.
const std::array<PermissibleShear, 16> kTypicalPermissibleShear { {
        { "Temporary", "Woven paper net", 0.15 },
        { "Temporary", "Jute net", 0.45 },
        { "Temporary", "Fiberglass roving, single layer", 0.60 },
        { "Temporary", "Fiberglass roving, double layer", 0.85 },
        { "Temporary", "Straw with net", 1.45 },
        { "Temporary", "Curled wood mat", 1.55 },
        { "Temporary", "Synthetic mat", 2.00 },
        { "Vegetative", "Vegetation, retardance class A", 3.70 },
        { "Vegetative", "Vegetation, retardance class B", 2.10 },
        { "Vegetative", "Vegetation, retardance class C", 1.00 },
        { "Vegetative", "Vegetation, retardance class D", 0.60 },
        { "Vegetative", "Vegetation, retardance class E", 0.35 },
        { "Gravel riprap", "Gravel riprap, 1 in", 0.33 },
        { "Gravel riprap", "Gravel riprap, 2 in", 0.67 },
        { "Rock riprap", "Rock riprap, 6 in", 2.00 },
        { "Rock riprap", "Rock riprap, 12 in", 4.00 },
} };

const char *const kPermissibleShearSource
        = "Source: FHWA, Design of Roadside Channels with Flexible Linings, HEC-15 (Chen and "
          "Cotton, 1988), Table 2. Compare the maximum bed shear [τd] with the lining's value.";
const char *const kShearUnit = "lb/ft²";

namespace {
CheckLine plainLine(const char *quantity, const char *symbol, double value, const char *unit)
{
    return { quantity, symbol, checkValueText(value), unit, "", "", false, value };
}

CheckLine regimeLine(FlowRegime regime)
{
    CheckLine line { "Flow regime",
                     "",
                     regimeName(regime),
                     "",
                     "subcritical, [Fr] < 0.86",
                     "",
                     regime != FlowRegime::Subcritical };
    switch (regime) {
    case FlowRegime::Subcritical:
        line.verdict = "Meets the limit: stable water surface";
        break;
    case FlowRegime::NearCritical:
        line.verdict = "Fails: near-critical flow (0.86 to 1.13) has an unstable, wavy water "
                       "surface; change the slope or the section";
        break;
    case FlowRegime::Supercritical:
        line.verdict = "Fails: supercritical flow is fast and shallow, and a hydraulic jump "
                       "forms where it slows";
        break;
    }
    return line;
}

CheckLine velocityRatioLine(double ratio)
{
    CheckLine line = plainLine("Velocity ratio", "[V/Vp]", ratio, "");
    line.limit = "at most 1";
    line.fails = ratio > 1;
    line.verdict = line.fails ? "Fails: the velocity exceeds the permissible velocity, so the "
                                "lining erodes ([FSe] below 1)"
                              : "Meets the limit: within the permissible velocity";
    return line;
}

CheckLine residenceTimeLine(const std::optional<double> &minutes)
{
    if (minutes)
        return plainLine("Residence time", "[tr]", *minutes, "min");
    return { "Residence time",
             "[tr]",
             "",
             "",
             "",
             "Not computed: the method has no channel length",
             false };
}
} // namespace

std::string checkValueText(double value)
{
    // Values beyond single precision keep seven digits of the double rather than show "INF".
    if (std::fabs(value) <= FLT_MAX)
        return AddLeadingZero(NumberToDisplayText(RoundToSingle(value)));
    char text[32];
    std::snprintf(text, sizeof text, "%.7G", value);
    return text;
}

std::vector<CheckLine> hydraulicCheckLines(const HydraulicChecks &c)
{
    std::vector<CheckLine> lines {
        plainLine("Critical depth", "[dc]", c.criticalDepth, "ft"),
        plainLine("Critical velocity", "[Vc]", c.criticalVelocity, "ft/s"),
        plainLine("Critical slope", "[Scc]", c.criticalSlope, "ft/ft"),
        plainLine("Hydraulic depth", "[Dh]", c.hydraulicDepth, "ft"),
        plainLine("Froude number", "[Fr]", c.froude, ""),
        regimeLine(c.regime),
        plainLine("Mean boundary shear", "[τ0]", c.shearMean, kShearUnit),
        plainLine("Maximum bed shear", "[τd]", c.shearMax, kShearUnit),
        plainLine("Specific energy", "[E]", c.specificEnergy, "ft"),
        velocityRatioLine(c.velocityRatio),
        residenceTimeLine(c.residenceTime),
    };
    // The same keys and order as the "checks" object of swale-calc --json.
    const char *const keys[] = { "critical_depth",  "critical_velocity",
                                 "critical_slope",  "hydraulic_depth",
                                 "froude",          "regime",
                                 "shear_mean",      "shear_max",
                                 "specific_energy", "velocity_ratio",
                                 "residence_time" };
    for (size_t i = 0; i < lines.size(); ++i)
        lines[i].key = keys[i];
    return lines;
}
