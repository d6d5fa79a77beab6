#pragma once

#include "CalcContext.h"
#include "SwaleProject.h"

#include <cstdint>
#include <random>
#include <string>

// Seeded projects for the differential test: every solution method and both channel-flow
// methods, with plausible channels in varied spellings ("1,500", "$3", " +.5 ", "2.5E1"),
// extreme numbers (1E-50, 1E308, subnormals, beyond the double range), odd texts, rating curves
// that are too short, out of order or too low for the normal depth, and search settings that
// stop the search early.
class ProjectGenerator
{
public:
    explicit ProjectGenerator(uint64_t seed)
        : m_random(seed)
    { }

    SwaleProject nextProject();
    CalcSettings nextSettings();
    // A float of any bit pattern: subnormals, infinities and NaNs included.
    float nextFloatBits();

private:
    uint64_t below(uint64_t n) { return m_random() % n; }
    double uniform(double low, double high);
    std::string plausibleText(double low, double high);
    std::string numberText(double low, double high, bool unusual);
    void fillRatingCurve(SwaleProject &project);

    std::mt19937_64 m_random;
};
