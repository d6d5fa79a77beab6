#pragma once

#include <QDialog>

#include <functional>

class QPrintPreviewWidget;
class QPrinter;

// The Print Preview window: the report's pages as they will print, on the printer's paper and
// orientation, with buttons to print or export them. What the buttons do is the print code's
// business, told through the signals.
class ReportPreviewDialog : public QDialog
{
    Q_OBJECT

public:
    using PaintPages = std::function<void(QPrinter &)>;
    // Previews what `paint` draws on `printer`.
    ReportPreviewDialog(QPrinter &printer, PaintPages paint, QWidget *parent = nullptr);

    QPrintPreviewWidget *preview() const { return m_preview; }
    // Number of pages of the preview, laid out on first use.
    int pageCount();

signals:
    void printRequested();
    void exportRequested();

private:
    QPrintPreviewWidget *m_preview;
    PaintPages m_paint;
};
