#pragma once

#include "SwaleProject.h"

#include <string>
#include <utility>
#include <vector>

// A complete, valid project for each solution method: a grassed roadside swale, 4 ft bottom,
// 3:1 sides, 1 percent slope, n = 0.03, draining 2 acres, with a four-point rating curve.
SwaleProject validProject(int solutionMethod, int channelFlowMethod = 1);

// validProject calculated: its output texts are the results and resultsShown is set.
SwaleProject calculatedProject(int solutionMethod, int channelFlowMethod = 1);

// An inlet channel (method 3) with a rating curve and shown results: every part of the project
// file's layout in use.
SwaleProject sampleProject();

// Sets rating-curve rows from "depth,discharge" pairs, starting at row 1.
void setRatingCurve(SwaleProject &project,
                    const std::vector<std::pair<std::string, std::string>> &rows);

// Replaces the rating curve with `rows` rows: depth r - 1 inches, discharge r - 1 + 1/16 cfs
// (0 on row 1), a curve that rises slowly enough for the normal depth to be found on it.
void setLongRatingCurve(SwaleProject &project, int rows);
