#pragma once

#include "WindowFixture.h"

#include <QFile>
#include <QStringList>
#include <QTest>

// The window suites' examples: copied into the program folder, opened from there as examples.
inline const QStringList kExamples = {
    QStringLiteral("Roadside swale - required length.swl"),
    QStringLiteral("Parking lot swale - efficiency of given length.swl"),
    QStringLiteral("Median ditch - inlet interception.swl"),
    QStringLiteral("Lined roadside ditch - capacity check.swl"),
};

inline QString exampleSource(const QString &name)
{
    return QStringLiteral(SWALE_EXAMPLES_DIR "/") + name;
}

inline void setUpWithExamples(WindowFixture &fx)
{
    fx.setUp();
    for (const QString &example : kExamples)
        QVERIFY(QFile::copy(exampleSource(example),
                            fx.programFile(QStringLiteral("Examples/") + example)));
}

// Opens example `index` (1 to 4) as File > Example does.
inline void openExample(WindowFixture &fx, int index)
{
    QVERIFY(fx.window->OpenDataFile(
            fx.programFile(QStringLiteral("Examples/")) + kExamples.at(index - 1), OpenExample));
}
