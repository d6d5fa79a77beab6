#pragma once

#include "PageLayout.h"

#include <QStringList>
#include <QWidget>

#include <memory>

// Stand-alone copies of the two pages' controls, built from the same tables as the window's
// pages, for testing the layout, the scrolling and the keyboard without the main window.
struct InputPageFixture
{
    InputPageFixture();
    std::unique_ptr<QWidget> panel;
    InputPageControls controls;
};

struct ResultsPageFixture
{
    ResultsPageFixture();
    std::unique_ptr<QWidget> panel;
    ResultsPageControls controls;
};

// Object names of the shown children of `panel` (push buttons aside), from the top down.
QStringList shownFromTheTop(const QWidget *panel);
// The items of each page from the top, as the pages' section tables list them for a solution
// method and a channel-flow method (0: none chosen).
QStringList expectedInputOrder(int method, int flow);
QStringList expectedResultsOrder(int method, int flow);
