#pragma once

#include "SwaleInputData.h"

#include <optional>
#include <string>

// Hydraulic checks of a calculated channel, beyond the results boxes: the critical state of the
// design flow, the flow regime at normal depth, the boundary shear that lining manuals design
// against, the specific energy, the velocity against the permissible velocity and the time the
// water stays in the swale. US customary units throughout.

constexpr double kGravity = 32.2; // g, ft/s2
constexpr double kUnitWeightOfWater = 62.4; // gamma, lb/ft3

// Near-critical band of the Froude number: USACE EM 1110-2-1601, Hydraulic Design of Flood
// Control Channels (1994), finds the water surface unstable for 0.86 < Fr < 1.13.
constexpr double kNearCriticalFroudeLow = 0.86;
constexpr double kNearCriticalFroudeHigh = 1.13;

enum class FlowRegime { Subcritical, NearCritical, Supercritical };

// "subcritical", "near-critical" or "supercritical".
const char *regimeName(FlowRegime regime);
// The regime of Froude number `froude`; the band's two limits belong to the near-critical band.
FlowRegime regimeOf(double froude);

struct HydraulicChecks
{
    double criticalDepth = 0; // dc, ft: Q2 T = g A3
    double criticalVelocity = 0; // Vc, ft/s
    double criticalSlope = 0; // Scc, ft/ft: the slope whose normal depth is dc
    double hydraulicDepth = 0; // Dh = Ax / Wt at normal depth, ft
    double froude = 0; // Fr = V / sqrt(g Dh)
    FlowRegime regime = FlowRegime::Subcritical;
    double shearMean = 0; // tau0 = gamma Rh Sc, lb/ft2
    double shearMax = 0; // taud = gamma d Sc, lb/ft2
    double specificEnergy = 0; // E = d + V2 / 2g, ft
    double velocityRatio = 0; // V / Vp
    std::optional<double> residenceTime; // L / V, min; methods 1 and 2 only
    std::string fault; // "" when the values hold; else why they could not be computed
};

// The checks of `record`, the calculation record of a successful Calculate (at the normal depth
// found, with the design flow PeakFlowRate and the method's ResultLength). Never throws; a
// record without a normal depth or an arithmetic fault (division by zero, overflow) leaves the
// values at 0 and the reason in `fault`.
HydraulicChecks computeHydraulicChecks(const SwaleInputData &record);

// Critical depth of flow `Q` (cfs) in the trapezoid B, Z1, Z2 (ft, horizontal per vertical), by
// bisection of log(A3 / T) - log(Q2 / g) over depths of 1E-300 to 1E+300 ft, to 1E-12 relative.
// Returns false with the reason in `fault` when no such depth carries the flow critically.
bool findCriticalDepth(double Q, double B, double Z1, double Z2, double &dc, std::string &fault);
