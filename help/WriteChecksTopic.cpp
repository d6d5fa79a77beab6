// Writes the help topic of the hydraulic checks from its page (checks.html) with the table of
// typical permissible shear filled in from the calculation core, so that the help and the report
// show the same figures. The build runs it once:
//     swale-write-checks-topic checks.html build/bin/help/checks.html
// The page holds the marker line <!-- permissible shear rows --> where the table rows go.

#include "HydraulicCheckLines.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace {
const char *const kMarker = "<!-- permissible shear rows -->";

// One row a lining; the first lining of a category opens the category's cell across its rows.
std::string shearRows()
{
    std::ostringstream rows;
    const auto &table = kTypicalPermissibleShear;
    for (size_t i = 0; i < table.size(); ++i) {
        rows << "<tr>";
        if (i == 0 || std::string(table[i].category) != table[i - 1].category) {
            size_t span = 1;
            while (i + span < table.size()
                   && std::string(table[i + span].category) == table[i].category)
                ++span;
            rows << "<td rowspan=\"" << span << "\">" << table[i].category << "</td>";
        }
        char shear[32];
        std::snprintf(shear, sizeof shear, "%.2f", table[i].shear);
        rows << "<td>" << table[i].lining << "</td><td class=\"n\">" << shear << "</td></tr>\n";
    }
    return rows.str();
}
} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s PAGE.html TOPIC.html\n", argv[0]);
        return 64;
    }
    std::ifstream page(argv[1], std::ios::binary);
    std::ostringstream topic;
    bool filled = false;
    for (std::string line; std::getline(page, line);) {
        if (line.find(kMarker) != std::string::npos) {
            topic << shearRows();
            filled = true;
        } else {
            topic << line << '\n';
        }
    }
    if (!page.eof() || !filled) {
        std::fprintf(stderr, "%s: cannot read %s or it has no line %s\n", argv[0], argv[1],
                     kMarker);
        return 1;
    }
    std::ofstream out(argv[2], std::ios::binary);
    out << topic.str();
    out.close();
    if (!out) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], argv[2]);
        return 1;
    }
    return 0;
}
