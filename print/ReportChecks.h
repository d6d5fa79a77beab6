#pragma once

#include "ReportContent.h"
#include "SwaleProject.h"

// Section "III.  HYDRAULIC CHECKS" of the report: the checks of the project's calculation, each
// with its symbol and unit and, where a limit applies, the limit and the verdict in words under
// it; then the typical permissible shear stress by lining, to compare the shear with. The project
// is calculated again for its record: its results are shown only while they belong to its
// inputs, so the record is the one behind the results printed.
ReportSection checksSection(const SwaleProject &project);
