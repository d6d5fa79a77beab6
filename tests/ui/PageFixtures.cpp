#include "PageFixtures.h"

#include <QPushButton>

#include <algorithm>

namespace {

// Object names `name`_first to `name`_last.
QStringList boxes(const char *name, int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names << QLatin1String(name) + QLatin1Char('_') + QString::number(i);
    return names;
}

} // namespace

QList<QWidget *> shownChildren(const QWidget *panel)
{
    QList<QWidget *> shown;
    for (QWidget *child : panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden() && !qobject_cast<QPushButton *>(child))
            shown.append(child);
    }
    std::stable_sort(shown.begin(), shown.end(),
                     [](QWidget *a, QWidget *b) { return a->y() < b->y(); });
    return shown;
}

QStringList shownFromTheTop(const QWidget *panel)
{
    QStringList names;
    for (QWidget *child : shownChildren(panel))
        names << child->objectName();
    return names;
}

QStringList expectedInputOrder(int method, int flow)
{
    QStringList names = boxes("txtInput", 1, 3);
    names << QStringLiteral("lblInput_1") << QStringLiteral("grpSolutionMethod")
          << QStringLiteral("lblInput_2");
    if (method == 2)
        names << QStringLiteral("txtInput_4");
    names << boxes("txtInput", 5, 8);
    if (method == 1)
        names << QStringLiteral("lblInput_3") << QStringLiteral("txtInput_9");
    names << QStringLiteral("lblInput_4") << QStringLiteral("grpChannelFlow");
    if (flow == 1)
        names << QStringLiteral("lblInput_5") << boxes("txtInput", 10, 14);
    if (flow == 2)
        names << QStringLiteral("lblInput_6") << boxes("txtInput", 15, 16);
    names << QStringLiteral("lblInput_7") << boxes("txtInput", 17, 19);
    if (method == 1 || method == 2)
        names << QStringLiteral("lblInput_8") << boxes("txtInput", 20, 23);
    if (method == 3 || method == 4)
        names << QStringLiteral("lblInput_9") << QStringLiteral("grdRatingCurve");
    return names;
}

QStringList expectedResultsOrder(int method, int flow)
{
    const bool infiltration = method == 1 || method == 2;
    QStringList names { QStringLiteral("lblOutput_1") };
    if (infiltration)
        names << QStringLiteral("txtOutput_1");
    if (infiltration || method == 3)
        names << QStringLiteral("txtOutput_2");
    names << QStringLiteral("txtOutput_3") << QStringLiteral("lblOutput_2")
          << boxes("txtOutput", 4, 5);
    if (flow == 1)
        names << QStringLiteral("txtOutput_6");
    names << QStringLiteral("lblOutput_3") << boxes("txtOutput", 7, 12)
          << QStringLiteral("lblOutput_4") << QStringLiteral("txtOutput_13");
    if (infiltration || method == 3) {
        names << QStringLiteral("lblOutput_5");
        if (infiltration)
            names << boxes("txtOutput", 14, 15);
        names << boxes("txtOutput", 16, 17);
        if (infiltration)
            names << QStringLiteral("txtOutput_18");
    }
    return names;
}
