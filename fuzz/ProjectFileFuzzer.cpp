// Feeds arbitrary bytes to the project-file reader as the content of a .swl file (versions 1, 2
// and 3 through the header line). Whatever the bytes, loading must end without a crash and a
// failure must say why. A project that loads must save, and what was saved must load back as
// the same project: the texts trimmed of blanks, nothing else changed. Saving it again and
// again must come to rest on the same bytes.

#include "FuzzScratch.h"
#include "NumberText.h"
#include "ProjectFile.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

namespace {
std::string fileBytes(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void expectSameText(const std::string &reread, const std::string &original, const std::string &what)
{
    if (reread != trimBlanks(original))
        invariantBroken(what + " changed on saving: \"" + original + "\" came back as \"" + reread
                        + "\"");
}

// `reread` is what saving `loaded` and loading the file gave.
void expectSavedProject(const SwaleProject &loaded, const SwaleProject &reread)
{
    for (int box = 1; box <= kInputCount; ++box)
        expectSameText(reread.inputText[static_cast<size_t>(box)],
                       loaded.inputText[static_cast<size_t>(box)], "input " + std::to_string(box));
    if (reread.solutionMethod != loaded.solutionMethod
        || reread.channelFlowMethod != loaded.channelFlowMethod)
        invariantBroken("an option index changed on saving");
    if (reread.resultsShown != loaded.resultsShown)
        invariantBroken("the results flag changed on saving");
    for (int box = 1; loaded.resultsShown && box <= kOutputCount; ++box)
        expectSameText(reread.outputText[static_cast<size_t>(box)],
                       loaded.outputText[static_cast<size_t>(box)],
                       "result " + std::to_string(box));
    const int lastRow = GetLastUsedRow(loaded);
    if (GetLastUsedRow(reread) != lastRow)
        invariantBroken("the number of rating-curve rows changed on saving");
    // A blank row is written as "," and reads back as the cell text "," (the tokenizer keeps a
    // lone delimiter): only rows with a depth keep their cells exactly.
    for (int row = 1; row <= lastRow; ++row) {
        if (trimBlanks(loaded.ratingCurveCell(row, 1)).empty())
            continue;
        for (int col = 1; col <= 2; ++col)
            expectSameText(reread.ratingCurveCell(row, col), loaded.ratingCurveCell(row, col),
                           "rating-curve cell " + std::to_string(row) + "," + std::to_string(col));
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::string input = scratchPath("in.swl");
    static const std::string first = scratchPath("first.swl");
    static const std::string second = scratchPath("second.swl");
    writeScratchFile(input, data, size);

    SwaleProject loaded;
    const ProjectFileResult result = loadProject(input, loaded);
    if (!result.ok) {
        if (result.error.empty() || result.failedStep == ProjectFileStep::None)
            invariantBroken("a refused file gives no reason");
        return 0;
    }
    const ProjectFileResult saved = saveProject(first, loaded);
    if (!saved.ok)
        invariantBroken("a project that loaded cannot be saved: " + saved.error);
    SwaleProject reread;
    const ProjectFileResult reloaded = loadProject(first, reread);
    if (!reloaded.ok)
        invariantBroken("a saved project does not load: " + reloaded.error);
    expectSavedProject(loaded, reread);
    if (!saveProject(second, reread).ok)
        invariantBroken("a reloaded project cannot be saved");
    if (fileBytes(second) == fileBytes(first))
        return 0;
    // Blank rating-curve rows come back as "," and are written as ",," from then on: one more
    // round must write the same bytes.
    SwaleProject third;
    if (!loadProject(second, third).ok || !saveProject(first, third).ok)
        invariantBroken("a project saved twice does not load and save again");
    if (fileBytes(second) != fileBytes(first))
        invariantBroken("saving a reloaded project writes other bytes each time");
    return 0;
}
