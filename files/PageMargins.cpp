#include "PageMargins.h"

#include "DataFile.h"
#include "NumberText.h"
#include "SettingsFiles.h"

#include <array>

const char *const kMarginsFile = "Margins.ini";

namespace {
constexpr int kThousandthsOfInch = 1;
constexpr double kPointsPerInch = 72.0;
constexpr double kMillimetresPerInch = 25.4;
} // namespace

bool ReadPageMargins(const std::string &path, PageMargins &margins)
{
    margins = PageMargins();

    DataFile file;
    if (!OpenSettingsFile(file, path))
        return false;
    std::array<int, 5> lines {};
    for (int &line : lines) {
        if (!file.ReadInteger(line))
            return false;
    }
    file.Close();

    const bool inches = lines[0] == kThousandthsOfInch;
    const double divisor = inches ? 1000.0 : 100.0;
    PageMargins read;
    read.ScaleCode = inches ? kScaleInches : kScaleMillimetres;
    read.Margin1 = RoundToSingle(lines[1] / divisor);
    read.Margin2 = RoundToSingle(lines[2] / divisor);
    // The file's fourth line is margin 4 and its fifth margin 3: the record's fields run left,
    // top, bottom, right while the file runs left, top, right, bottom.
    read.Margin4 = RoundToSingle(lines[3] / divisor);
    read.Margin3 = RoundToSingle(lines[4] / divisor);
    margins = read;
    return true;
}

double marginInPoints(const PageMargins &margins, float margin)
{
    const double perUnit = margins.ScaleCode == kScaleMillimetres
            ? kPointsPerInch / kMillimetresPerInch
            : kPointsPerInch;
    return static_cast<double>(margin) * perUnit;
}
