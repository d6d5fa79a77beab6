#include "ProjectFile.h"

#include "DataFile.h"
#include "NumberText.h"
#include "TextParser.h"

#include <array>

const char *const kProjectFileHeader = "Swale_03";

namespace {
const std::string kHeaderMarker = "Swale_";

// Input boxes in the order of lines 2 to 22 of versions 1 and 2: job, hydrology, channel
// slope, section, lining to water table, then the two inputs added last to that layout.
constexpr std::array<int, 21> kOldInputOrder = {
    1, 2, 3, 10, 11, 12, 13, 14, 8, 5, 6, 7, 17, 18, 19, 20, 21, 22, 23, 9, 4,
};

// A stored option index outside the group's buttons leaves the group unchosen.
// Reads a stored option index; one outside 1..buttonCount leaves the group unchosen (0).
bool readOption(DataFile &file, int buttonCount, int &chosen)
{
    int stored = 0;
    if (!file.ReadInteger(stored))
        return false;
    chosen = stored >= 1 && stored <= buttonCount ? stored : 0;
    return true;
}

// `count` characters from 1-based character `position` of UTF-8 `text`, like a Mid of the line.
std::string midCharacters(const std::string &text, int position, int count)
{
    std::string result;
    int character = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            ++character; // a lead byte starts the next character
        if (character >= position + count)
            break;
        if (character >= position)
            result += text[i];
    }
    return result;
}

// The version number in the header line, or 0 when the line is no project header.
int headerVersion(const std::string &line)
{
    if (line.find(kHeaderMarker) == std::string::npos)
        return 0;
    // The version sits at positions 7 and 8 of the line, wherever "Swale_" was found: a line
    // such as "My Swale_03" is therefore no project header.
    const std::string version = midCharacters(line, 7, 2);
    if (!isRecognisedNumber(version))
        return 0;
    const double value = leadingNumber(version);
    return value == 1 || value == 2 || value == 3 ? static_cast<int>(value) : 0;
}

bool readInputText(DataFile &file, SwaleProject &project, int box)
{
    return file.ReadLine(project.inputText[static_cast<size_t>(box)]);
}

// The rating-curve count line and its rows, "depth,discharge" each; the grid grows to hold
// every row of the file. Tokens are kept as the tokenizer gives them.
bool readRatingCurve(DataFile &file, SwaleProject &project)
{
    int rowCount = 0;
    if (!file.ReadInteger(rowCount))
        return false;
    clsTextParserExt parser;
    for (int row = 1; row <= rowCount; ++row) {
        std::string line;
        if (!file.ReadLine(line))
            return false;
        parser.setText(line);
        std::string depth;
        std::string discharge;
        if (parser.GetFirstToken(depth))
            parser.GetNextToken(discharge);
        project.setRatingCurveCell(row, 1, depth);
        project.setRatingCurveCell(row, 2, discharge);
    }
    return true;
}

// The results flag and, when it is not 0, the 18 result texts.
bool readResults(DataFile &file, SwaleProject &project)
{
    int flag = 0;
    if (!file.ReadInteger(flag))
        return false;
    project.resultsShown = flag != 0;
    if (!project.resultsShown)
        return true;
    for (int box = 1; box <= kOutputCount; ++box) {
        if (!file.ReadLine(project.outputText[static_cast<size_t>(box)]))
            return false;
    }
    return true;
}

std::string ratingCurveLine(const SwaleProject &project, int row)
{
    return trimBlanks(project.ratingCurveCell(row, 1)) + ","
            + trimBlanks(project.ratingCurveCell(row, 2));
}

ProjectFileResult failure(ProjectFileStep step, const std::string &error)
{
    return { false, step, error };
}
} // namespace

bool WriteProjectData(DataFile &file, const SwaleProject &project)
{
    if (!file.WriteLine(kProjectFileHeader))
        return false;
    for (int box = 1; box <= kInputCount; ++box) {
        if (!file.WriteLine(trimBlanks(project.inputText[static_cast<size_t>(box)])))
            return false;
    }
    if (!file.WriteLine(std::to_string(project.solutionMethod))
        || !file.WriteLine(std::to_string(project.channelFlowMethod)))
        return false;
    const int rowCount = GetLastUsedRow(project);
    if (!file.WriteLine(std::to_string(rowCount)))
        return false;
    for (int row = 1; row <= rowCount; ++row) {
        if (!file.WriteLine(ratingCurveLine(project, row)))
            return false;
    }
    if (!file.WriteLine(project.resultsShown ? "1" : "0"))
        return false;
    if (!project.resultsShown)
        return true;
    for (int box = 1; box <= kOutputCount; ++box) {
        if (!file.WriteLine(trimBlanks(project.outputText[static_cast<size_t>(box)])))
            return false;
    }
    return true;
}

bool ReadProjectData(DataFile &file, SwaleProject &project)
{
    std::string header;
    if (!file.ReadLine(header))
        return false;
    switch (headerVersion(header)) {
    case 1:
        return ReadProjectDataV1(file, project);
    case 2:
        return ReadProjectDataV2(file, project);
    case 3:
        return ReadProjectDataV3(file, project);
    default:
        return false;
    }
}

bool ReadOldInputBlock(DataFile &file, SwaleProject &project)
{
    for (const int box : kOldInputOrder) {
        if (!readInputText(file, project, box))
            return false;
    }
    if (!readOption(file, kSolutionMethodCount, project.solutionMethod))
        return false;
    // These versions knew only the runoff hydrograph; the specified flow came later.
    project.inputText[15].clear();
    project.inputText[16].clear();
    project.channelFlowMethod = 1;
    return true;
}

bool ReadProjectDataV1(DataFile &file, SwaleProject &project)
{
    return ReadOldInputBlock(file, project) && readResults(file, project);
}

bool ReadProjectDataV2(DataFile &file, SwaleProject &project)
{
    return ReadOldInputBlock(file, project) && readRatingCurve(file, project)
            && readResults(file, project);
}

bool ReadProjectDataV3(DataFile &file, SwaleProject &project)
{
    for (int box = 1; box <= kInputCount; ++box) {
        if (!readInputText(file, project, box))
            return false;
    }
    if (!readOption(file, kSolutionMethodCount, project.solutionMethod)
        || !readOption(file, kChannelFlowMethodCount, project.channelFlowMethod))
        return false;
    return readRatingCurve(file, project) && readResults(file, project);
}

int GetLastUsedRow(const SwaleProject &project)
{
    for (int row = project.ratingCurveRowCount(); row >= 1; --row) {
        if (!trimBlanks(project.ratingCurveCell(row, 1)).empty()
            || !trimBlanks(project.ratingCurveCell(row, 2)).empty())
            return row;
    }
    return 0;
}

ProjectFileResult loadProject(const std::string &path, SwaleProject &project)
{
    project = SwaleProject();
    DataFile file;
    if (!file.OpenForRead(path))
        return failure(ProjectFileStep::Open, file.errorString());
    if (!ReadProjectData(file, project)) {
        if (file.lineNumber() == 0)
            return failure(ProjectFileStep::Open, "the file is empty");
        if (file.lineNumber() == 1 && file.errorString().empty())
            return failure(ProjectFileStep::Open,
                           "not a project file of version 1, 2 or 3: the first line does not "
                           "read \"Swale_01\", \"Swale_02\" or \"Swale_03\"");
        return failure(ProjectFileStep::Read, file.errorString());
    }
    file.Close();
    return { true, ProjectFileStep::None, {} };
}

ProjectFileResult saveProject(const std::string &path, const SwaleProject &project)
{
    DataFile file;
    if (!file.OpenForWrite(path))
        return failure(ProjectFileStep::Open, file.errorString());
    if (!WriteProjectData(file, project) || !file.Close())
        return failure(ProjectFileStep::Write, file.errorString());
    return { true, ProjectFileStep::None, {} };
}
