#pragma once

#include "InputPage.h"
#include "PageLayout.h"
#include "ResultsPage.h"

#include <QList>
#include <QStringList>
#include <QWidget>

// The window's two pages on their own, with the controls their layout places, for testing the
// layout and the keyboard without the main window.
struct InputPageFixture
{
    InputPage page;
    InputPageControls controls = page.controls();
    QWidget *panel = &page;
};

struct ResultsPageFixture
{
    ResultsPage page;
    ResultsPageControls controls = page.controls();
    QWidget *panel = &page;
};

// The shown children of `panel` (push buttons aside), from the top down.
QList<QWidget *> shownChildren(const QWidget *panel);
// Their object names.
QStringList shownFromTheTop(const QWidget *panel);
// The items of each page from the top, as the pages' section tables list them for a solution
// method and a channel-flow method (0: none chosen).
QStringList expectedInputOrder(int method, int flow);
QStringList expectedResultsOrder(int method, int flow);
