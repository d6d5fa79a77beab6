#pragma once

#include "ReportContent.h"
#include "ReportLayout.h"
#include "TextFitting.h"

#include <vector>

// The pieces the layout stacks on its pages: blocks that never break (a heading, a table row, a
// wrapped field). Used by layoutReport only.

struct ReportBlock
{
    double height = 0;
    double spaceBefore = 0; // dropped at the top of a page
    bool keepWithNext = false; // headings stay on the page of what they head
    // Height of the run of blocks this one starts (a group, a section) when the run should not
    // break: it then moves to a new page whole, provided it fits on one. 0 for no such run.
    double runHeight = 0;
    int repeatHeader = -1; // index in BlockList::repeatHeaders when the block is a table row
    ReportPage items; // x in page units, y from the block's top
};

struct BlockList
{
    std::vector<ReportBlock> blocks;
    std::vector<ReportBlock> repeatHeaders; // table headers repeated on continuation pages
};

// Splits the report into blocks for a text column starting at `left` and `width` wide. The
// caption, value and unit columns are measured once over every field of the report, so that the
// inputs and the results line up alike.
BlockList buildReportBlocks(const ReportContent &content, double left, double width,
                            const TextMeasure &measure);
