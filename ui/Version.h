#pragma once

#include <QString>

// "Version 3.3." followed by the revision in four digits: revision 12 gives "Version 3.3.0012".
QString versionText(int revision);

// The revision of this build, set by the build from the project's version history.
int programRevision();
