#pragma once

#include "SwaleProject.h"

#include <string>
#include <vector>

// A complete, valid project for each solution method under channel-flow method 1: a grassed
// roadside swale, 4 ft bottom, 3:1 sides, 1 percent slope, n = 0.03, draining 2 acres.
SwaleProject validProject(int solutionMethod, int channelFlowMethod = 1);

// Sets rating-curve rows from "depth,discharge" pairs, starting at row 1.
void setRatingCurve(SwaleProject &project, const std::vector<std::pair<std::string, std::string>> &rows);
