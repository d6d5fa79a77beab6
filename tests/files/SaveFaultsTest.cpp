// A save over an existing project that meets a read-only folder or a write that fails part way
// must leave the old file byte for byte, no temporary file beside it, and say the system's
// reason.
#include "FileFaults.h"
#include "Files.h"
#include "Fixtures.h"
#include "ProjectFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct SaveFaultCase
{
    const char *name;
    SaveFault fault;
    ProjectFileStep failedStep; // the window words its message after this step
};

const SaveFaultCase kSaveFaultCases[] = {
    // The temporary file cannot be created beside the target: the save stops at its opening.
    { "read-only folder", SaveFault::ReadOnlyFolder, ProjectFileStep::Open },
    // The temporary file was created; its content could not be written.
    { "write fails part way", SaveFault::FailsPartWay, ProjectFileStep::Write },
};

TEST(SaveFaults, KeepTheOldFileAndLeaveNoTemporaryFile)
{
    // The edited project has a long rating curve, so that the new file is several times the old
    // one and a write that stops half way stops inside it.
    SwaleProject edited = validProject(1);
    setLongRatingCurve(edited, 120);
    TempFolder sizing;
    ASSERT_TRUE(saveProject(sizing.file("size.swl"), edited).ok);
    const size_t newSize = readBytes(sizing.file("size.swl")).size();
    for (const SaveFaultCase &row : kSaveFaultCases) {
        SCOPED_TRACE(row.name);
        TempFolder projects;
        openToOrdinaryUser(projects.path());
        const std::string path = projects.file("swale.swl");
        ASSERT_TRUE(saveProject(path, validProject(1)).ok);
        const std::string oldBytes = readBytes(path);

        FaultyFolder folder(row.fault, projects.path());
        const std::string notInForce = folder.arm(newSize);
        if (!notInForce.empty())
            GTEST_SKIP() << row.name << " cannot be made here: " << notInForce;
        const ProjectFileResult result = saveProject(path, edited);
        folder.disarm();

        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.failedStep, row.failedStep);
        EXPECT_NE(result.error.find(folder.systemReason()), std::string::npos) << result.error;
        EXPECT_EQ(readBytes(path), oldBytes) << "the old file is changed";
        EXPECT_EQ(projects.entries(), std::vector<std::string> { "swale.swl" })
                << "a temporary file is left";
        // Once the fault is gone the same save goes through: nothing of the failed one is in
        // the way.
        EXPECT_TRUE(saveProject(path, edited).ok);
    }
}

} // namespace
