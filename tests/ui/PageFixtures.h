#pragma once

#include "PageLayout.h"

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
