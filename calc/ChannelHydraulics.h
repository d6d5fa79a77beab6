#pragma once

#include "CalcContext.h"
#include "SwaleInputData.h"

// Trapezoidal channel: bottom width B, side slopes Z1 and Z2 (horizontal per unit vertical);
// B = 0 makes a triangle. US customary units: ft, ft2, cfs, ft/s.

// Manning's constant for US customary units.
constexpr double kManningConstant = 1.49;

struct SectionGeometry
{
    double Ax; // flow area, ft2
    double P; // wetted perimeter, ft
    double Rh; // hydraulic radius, ft
};

// Area, wetted perimeter and hydraulic radius of the section at depth d (ft).
SectionGeometry sectionGeometry(double d, double B, double Z1, double Z2);

// Water-surface width at depth d: Wt = Z1 d + B + Z2 d, ft.
double topWidth(double d, double B, double Z1, double Z2);

// Manning's equation: Q = (1.49 / n) Ax Rh^(2/3) Sc^(1/2), cfs.
double manningDischarge(double n, double Ax, double Rh, double Sc);

// Finds the normal depth of PeakFlowRate by doubling a trial depth from 0.5 ft until its section
// factor Rh^(2/3) Ax overshoots the target Qp n / (1.49 Sc^(1/2)), then bisecting. Writes
// FlowArea, WettedPerimeter and HydraulicRadius at every trial and NormalDepth on success. On
// failure leaves the reason in context.CalculationErrorMessage and returns false.
[[nodiscard]] bool SolveNormalDepth(SwaleInputData &data, CalcContext &context);

// Section values at the normal depth, shared by every solution method: TopWidth,
// ChannelDischarge, MeanVelocity and the erosion check ErosionSafetyFactor = Vp / V (reported
// only: a factor below 1 is not flagged).
void computeHydraulicsAtNormalDepth(SwaleInputData &data);
