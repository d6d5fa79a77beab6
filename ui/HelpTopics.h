#pragma once

#include <array>

// A help topic of the Help menu: its title and its HTML file in the "help" folder of the
// program folder.
struct HelpTopic
{
    const char *title;
    const char *file;
};

// The topics the Help menu lists, in its order. A new topic is one line here (and its file in
// help/, which the build copies and installs with the others).
inline constexpr std::array kHelpTopics = {
    HelpTopic { "Permissible velocities for channel linings", "1.html" },
    HelpTopic { "Manning's roughness coefficient for channel linings", "2.html" },
};
