#include "PageMargins.h"

#include "Files.h"

#include <gtest/gtest.h>

namespace {

struct MarginsCase
{
    const char *name;
    const char *fileBytes;
    bool expectedRead;
    int16_t scaleCode;
    float margin1, margin2, margin3, margin4;
};

// Expected margins are the file's integers divided by hand (1000 for thousandths of an inch,
// 100 for hundredths of a millimetre); lines 4 and 5 land in margins 4 and 3.
const MarginsCase kCases[] = {
    { "hundredths of a millimetre", "0\r\n2000\r\n2500\r\n1500\r\n1000\r\n", true,
      kScaleMillimetres, 20.0f, 25.0f, 10.0f, 15.0f },
    { "thousandths of an inch, in single precision, any sign", "1\n333\n1\n-250\n32767\n", true,
      kScaleInches, 0.333f, 0.001f, 32.767f, -0.25f },
    { "lone LF lines, blanks around numbers, lines after the fifth ignored",
      " 1 \n 100\n200 \n300\n400\n999\nfoo\n", true, kScaleInches, 0.1f, 0.2f, 0.4f, 0.3f },
    { "four lines keep the defaults", "1\n750\n1000\n500\n", false, kScaleInches, 0.5f, 0.5f, 0.5f,
      0.5f },
    { "a line that is not a whole number keeps the defaults", "1\n750\n1.5\n500\n250\n", false,
      kScaleInches, 0.5f, 0.5f, 0.5f, 0.5f },
};

TEST(ReadPageMargins, ReadsFiveLinesWithCrossedFourthAndFifth)
{
    TempFolder folder;
    const std::string path = folder.file(kMarginsFile);
    for (const MarginsCase &row : kCases) {
        SCOPED_TRACE(row.name);
        writeBytes(path, row.fileBytes);
        PageMargins margins;
        margins.ScaleCode = 99; // whatever the record held before is replaced
        margins.Margin1 = margins.Margin2 = margins.Margin3 = margins.Margin4 = 7.0f;
        EXPECT_EQ(ReadPageMargins(path, margins), row.expectedRead);
        EXPECT_EQ(margins.ScaleCode, row.scaleCode);
        EXPECT_EQ(margins.Margin1, row.margin1);
        EXPECT_EQ(margins.Margin2, row.margin2);
        EXPECT_EQ(margins.Margin3, row.margin3);
        EXPECT_EQ(margins.Margin4, row.margin4);
    }
}

// A point is 1/72 inch, and an inch 25.4 mm.
TEST(ReadPageMargins, MarginsInPointsFollowTheScale)
{
    PageMargins margins;
    EXPECT_DOUBLE_EQ(marginInPoints(margins, 1.5f), 108.0);
    margins.ScaleCode = kScaleMillimetres;
    EXPECT_DOUBLE_EQ(marginInPoints(margins, 25.4f), 72.0 * double(25.4f) / 25.4);
}

} // namespace
