#include "Inflow.h"

#include "Arithmetic.h"

double rationalPeakFlow(const SwaleInputData &data)
{
    return checkedFinite(data.DrainageArea * data.RunoffCoefficient * data.RainfallIntensity);
}

double inflowVolume(const SwaleInputData &data)
{
    const double Qp = data.PeakFlowRate;
    if (data.ChannelFlowMethod == 1)
        return checkedFinite(data.StormDuration * 60 * Qp);
    return checkedFinite(data.FlowDuration * Qp * 60);
}

bool computeInflow(SwaleInputData &data)
{
    switch (data.ChannelFlowMethod) {
    case 1:
        data.PeakFlowRate = rationalPeakFlow(data);
        data.RunoffVolume = inflowVolume(data);
        data.RunoffDepth = checkedFinite(data.RainfallIntensity * data.RunoffCoefficient);
        return true;
    case 2:
        data.PeakFlowRate = data.ChannelFlowRate;
        data.RunoffVolume = inflowVolume(data);
        data.RunoffDepth = 0;
        return true;
    default:
        return false;
    }
}

double hydrographVolume(const SwaleInputData &data, double q)
{
    if (data.ChannelFlowMethod == 1) {
        const double D = data.StormDuration;
        const double Tc = data.TimeOfConcentration;
        const double Qp = data.PeakFlowRate;
        return checkedFinite(q * ((D + Tc) - checkedDivide(q * Tc, Qp)) * 60);
    }
    return checkedFinite(q * data.FlowDuration * 60);
}

double MinOf(double a, double b)
{
    return a < b ? a : b;
}

double MaxOf(double a, double b)
{
    return a > b ? a : b;
}
