#pragma once

#include "PageMargins.h"

#include <QDialog>
#include <QPageLayout>
#include <QPageSize>

#include <array>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QRadioButton;

// Paper, orientation and margins of the printed report, as the Page Setup command leaves them
// for the next print or PDF.
struct ReportPageSetup
{
    QPageSize pageSize = QPageSize(QPageSize::Letter);
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    // Margins chosen in Page Setup; while none are chosen, every print reads Margins.ini.
    bool marginsChosen = false;
    PageMargins margins;
};

// The Page Setup dialog: paper size, orientation and the four margins in the unit of the
// margins record (inches or millimetres). "Default Margins" puts back those of Margins.ini.
class PageSetupDialog : public QDialog
{
    Q_OBJECT

public:
    // `fileMargins` are the margins of Margins.ini, shown when `setup` has none chosen.
    PageSetupDialog(const ReportPageSetup &setup, const PageMargins &fileMargins,
                    QWidget *parent = nullptr);

    // The choices as they stand; margins equal to those of Margins.ini count as not chosen, so
    // that the file keeps governing.
    ReportPageSetup setup() const;

    // For tests and callers that fill the dialog themselves.
    void setMargins(const PageMargins &margins);
    void setPageSize(QPageSize::PageSizeId id);
    void setOrientation(QPageLayout::Orientation orientation);

private:
    enum Edge { Left, Top, Right, Bottom };

    QWidget *createPaperGroup();
    QWidget *createMarginGroup();
    PageMargins margins() const;

    PageMargins m_fileMargins;
    PageMargins m_openedMargins;
    QComboBox *m_paper = nullptr;
    QRadioButton *m_portrait = nullptr;
    QRadioButton *m_landscape = nullptr;
    std::array<QDoubleSpinBox *, 4> m_margin {};
    QLabel *m_unitNote = nullptr;
};

// The paper sizes offered, US sizes first.
extern const std::array<QPageSize::PageSizeId, 6> kReportPaperSizes;
