#pragma once

#include "SwaleProject.h"

#include <string>

// Writes the printed report of `project` (inputs as loaded, results filled in) to `pdfPath`, as
// the window's Export PDF writes it: US Letter, portrait, with the margins of Margins.ini in the
// program's own folder. `projectPath` names the project in the report. Starts the Qt GUI machinery
// the fonts need, on the offscreen platform unless QT_QPA_PLATFORM says otherwise, so that no
// display is required. Returns false with the reason in `error`.
// Loads the module `kPdfModuleName` from the program's folder and calls its writer; the module
// holds the Qt GUI code, so the other runs of swale-calc start without it.
bool writeProjectPdf(const std::string &pdfPath, const SwaleProject &project,
                     const std::string &projectPath, std::string &error);

constexpr const char *kPdfModuleName = "swale-pdf.so";
constexpr const char *kPdfWriterSymbol = "swaleWriteProjectPdf";
