#pragma once

#include "SwaleProject.h"

#include <string>

class DataFile;

// The project data file (.swl). The current version, headed "Swale_03", holds one value per
// line: the 23 input texts, the two option indexes, the rating-curve rows ("depth,discharge"),
// the results flag and, when it is set, the 18 result texts. Versions 1 and 2 (headed "Swale_01"
// and "Swale_02") are read as well; they are never written.

extern const char *const kProjectFileHeader; // "Swale_03"

// Writes `project` in the current layout. Texts are trimmed of blanks, nothing else is changed.
// Stops at the first line that cannot be written and returns false.
bool WriteProjectData(DataFile &file, const SwaleProject &project);

// Reads line 1, picks the reader of its version and runs it. The version is the two characters
// at positions 7 and 8 of the line, wherever "Swale_" stands in it. Returns true only when the
// whole file of that version was read; a read that fails part way keeps what it already put in
// `project`. Only the values the file holds are set: start from a cleared project.
bool ReadProjectData(DataFile &file, SwaleProject &project);

bool ReadProjectDataV1(DataFile &file, SwaleProject &project);
bool ReadProjectDataV2(DataFile &file, SwaleProject &project);
bool ReadProjectDataV3(DataFile &file, SwaleProject &project);

// The input block of versions 1 and 2: 21 input texts in the older order, then the solution
// method. Sets boxes 15 and 16 to "" and the channel-flow method to 1 (runoff hydrograph), the
// only one those versions knew.
bool ReadOldInputBlock(DataFile &file, SwaleProject &project);

// Number of the last rating-curve row (from 1) with a non-blank cell; 0 when every row is blank.
int GetLastUsedRow(const SwaleProject &project);

// Which step of a load or save failed; the window words the failures differently.
enum class ProjectFileStep {
    None, // success
    Open, // the file could not be opened (load: or it is no project of version 1, 2 or 3)
    Read, // the file was opened but its content is damaged or cut short
    Write, // the lines could not be written, or the file could not be replaced
};

struct ProjectFileResult
{
    bool ok = false;
    ProjectFileStep failedStep = ProjectFileStep::None;
    std::string error; // why it failed, for a person: "line 27: ..." or the system's reason
};

// Opens `path`, clears `project` and reads it. On failure `project` keeps what was read.
ProjectFileResult loadProject(const std::string &path, SwaleProject &project);
// Saves `project` to `path` atomically: on failure the file at `path` is left as it was.
ProjectFileResult saveProject(const std::string &path, const SwaleProject &project);
