#include "PageFixtures.h"

#include "InputTable.h"
#include "OutputTable.h"
#include "tvrEditBox.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QString indexed(const char *name, int index)
{
    return QLatin1String(name) + QLatin1Char('_') + QString::number(index);
}

// A frame of option buttons, the way the window's groups are built.
template <size_t N>
QWidget *optionGroup(QWidget *panel, const char *groupName, const char *optionName,
                     const std::array<const char *, N> &captions,
                     std::array<QAbstractButton *, N> &buttons)
{
    auto *group = new QWidget(panel);
    group->setObjectName(QLatin1String(groupName));
    auto *layout = new QVBoxLayout(group);
    auto *exclusive = new QButtonGroup(group);
    for (size_t i = 1; i < N; ++i) {
        auto *button = new QRadioButton(QString::fromUtf8(captions[i]), group);
        button->setObjectName(indexed(optionName, static_cast<int>(i)));
        exclusive->addButton(button);
        layout->addWidget(button);
        buttons[i] = button;
    }
    return group;
}

// The rating-curve grid stands in as a fixed-size box: the layout only places it.
class GridStandIn : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return { 260, 220 }; }
};

// Object names `name`_first to `name`_last.
QStringList boxes(const char *name, int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names << QLatin1String(name) + QLatin1Char('_') + QString::number(i);
    return names;
}

} // namespace

InputPageFixture::InputPageFixture() : panel(std::make_unique<QWidget>())
{
    QWidget *p = panel.get();
    controls.panel = p;
    for (int i = 1; i <= kInputCount; ++i) {
        auto *box = new tvrEditBox(p);
        box->setObjectName(indexed("txtInput", i));
        box->setLeftCaption(QString::fromUtf8(inputBox(i).caption));
        box->setRightCaption(QString::fromUtf8(inputBox(i).unit));
        controls.txtInput[static_cast<size_t>(i)] = box;
    }
    for (int i = 1; i <= 9; ++i) {
        auto *heading = new QLabel(QString::fromUtf8(kInputSectionHeadings[static_cast<size_t>(i)]), p);
        heading->setObjectName(indexed("lblInput", i));
        controls.lblInput[static_cast<size_t>(i)] = heading;
    }
    controls.grpSolutionMethod = optionGroup(p, "grpSolutionMethod", "optCalculate",
                                             kSolutionMethodCaptions, controls.optCalculate);
    controls.grpChannelFlow = optionGroup(p, "grpChannelFlow", "optChannelFlow",
                                          kChannelFlowMethodCaptions, controls.optChannelFlow);
    controls.grdRatingCurve = new GridStandIn(p);
    controls.grdRatingCurve->setObjectName(QStringLiteral("grdRatingCurve"));
    controls.grdRatingCurve->setFocusPolicy(Qt::StrongFocus);
    controls.cmdToday = new QPushButton(QStringLiteral("<- Today"), p);
    controls.cmdToday->setObjectName(QStringLiteral("cmdToday"));
    for (int i = 1; i <= 2; ++i) {
        controls.cmdHelp[static_cast<size_t>(i)] = new QPushButton(QStringLiteral("<-  Help"), p);
        controls.cmdHelp[static_cast<size_t>(i)]->setObjectName(indexed("cmdHelp", i));
    }
}

ResultsPageFixture::ResultsPageFixture() : panel(std::make_unique<QWidget>())
{
    QWidget *p = panel.get();
    controls.panel = p;
    for (int group = 1; group <= 5; ++group) {
        auto *heading = new QLabel(QString::fromUtf8(kResultGroupTitles[static_cast<size_t>(group)]), p);
        heading->setObjectName(indexed("lblOutput", group));
        controls.lblOutput[static_cast<size_t>(group)] = heading;
    }
    for (int i = 1; i <= kOutputCount; ++i) {
        auto *box = new tvrEditBox(p);
        box->setObjectName(indexed("txtOutput", i));
        box->setLeftCaption(QString::fromUtf8(outputBox(i).caption));
        box->setRightCaption(QString::fromUtf8(outputBox(i).unit));
        box->setWriteProtected(true);
        controls.txtOutput[static_cast<size_t>(i)] = box;
    }
}

QStringList shownFromTheTop(const QWidget *panel)
{
    QList<QWidget *> shown;
    for (QWidget *child : panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden() && !qobject_cast<QPushButton *>(child))
            shown.append(child);
    }
    std::stable_sort(shown.begin(), shown.end(),
                     [](QWidget *a, QWidget *b) { return a->y() < b->y(); });
    QStringList names;
    for (QWidget *child : shown)
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
    QStringList names{ QStringLiteral("lblOutput_1") };
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
