#pragma once

#include <cstdint>
#include <string>
#include <vector>

// One point of the inlet rating curve: water depth in inches, discharge in cfs.
struct RatingCurvePoint
{
    double Depth = 0.0; // in
    double Discharge = 0.0; // cfs
};

// The inlet rating curve of solution method 3, filled by ValidateRatingCurve from the grid.
struct RatingCurveTable
{
    int32_t PointCount = 0;
    std::vector<RatingCurvePoint> Points; // point i (from 1) is Points[i - 1]
};

// The calculation record: filled by validation from the input boxes, then by the solution
// method. A fresh, zeroed record serves each calculation; fields a mode does not validate
// stay 0 and are not read by that mode's procedure.
struct SwaleInputData
{
    // Inputs, in the order of the program's record.
    int16_t SolutionMethod = 0; // 1..4
    int16_t ChannelFlowMethod = 0; // 1..2
    double ChannelLength = 0.0; // L, ft (method 2)
    double BottomWidth = 0.0; // B, ft
    double LeftSideSlope = 0.0; // Z1, horizontal per vertical
    double RightSideSlope = 0.0; // Z2, horizontal per vertical
    double ChannelSlope = 0.0; // Sc, ft/ft
    double DrainageArea = 0.0; // A, acre
    double RunoffCoefficient = 0.0; // C
    double RainfallIntensity = 0.0; // ID, in/hr
    double StormDuration = 0.0; // D, min
    double TimeOfConcentration = 0.0; // Tc, min
    double TreatmentEfficiency = 0.0; // desired e, percent (method 1)
    double ChannelFlowRate = 0.0; // given Qp, cfs
    double FlowDuration = 0.0; // min
    std::string LiningType;
    double PermissibleVelocity = 0.0; // Vp, ft/s
    double RoughnessCoefficient = 0.0; // n
    double InfiltrationRate = 0.0; // Kvu, ft/day
    double InfiltrationSafetyFactor = 0.0; // FSi
    double SoilPorosity = 0.0; // f, percent
    double WaterTableDepth = 0.0; // hb, ft
    RatingCurveTable RatingCurve; // method 3

    // Computed fields.
    double NormalDepth = 0.0; // d, ft
    double PeakFlowRate = 0.0; // Qp, cfs
    double RunoffVolume = 0.0; // Vr, ft3
    double RunoffDepth = 0.0; // dr, in
    double TopWidth = 0.0; // Wt, ft
    double FlowArea = 0.0; // Ax, ft2
    double WettedPerimeter = 0.0; // P, ft
    double HydraulicRadius = 0.0; // Rh, ft
    double ChannelDischarge = 0.0; // Q, cfs
    double MeanVelocity = 0.0; // V, ft/s
    double ErosionSafetyFactor = 0.0; // FSe
    double DesignInfiltrationRate = 0.0; // Id, ft/day
    double EffectiveBottomArea = 0.0; // Ab, ft2
    double InfiltrationAtNormalDepth = 0.0; // Qip, cfs
    double LargerRoot = 0.0; // cfs (method 1)
    double SmallerRoot = 0.0; // cfs (method 1)
    double MaxInfiltrationVolume = 0.0; // Vm, ft3
    double SoilStorageVolume = 0.0; // Vs, ft3
    double ResultEfficiency = 0.0; // e, percent
    double ResultLength = 0.0; // L, ft
    double InletDischarge = 0.0; // Qip of the inlet, cfs (method 3)
    double InletVolume = 0.0; // Vm of the inlet, ft3 (method 3)
};
