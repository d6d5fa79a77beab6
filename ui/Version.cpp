#include "Version.h"

#ifndef SWALE_REVISION
#define SWALE_REVISION 0
#endif

QString versionText(int revision)
{
    return QStringLiteral("Version 3.3.")
            + QStringLiteral("%1").arg(revision, 4, 10, QLatin1Char('0'));
}

int programRevision()
{
    return SWALE_REVISION;
}
