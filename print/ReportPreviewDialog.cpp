#include "ReportPreviewDialog.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QScreen>
#include <QToolBar>
#include <QVBoxLayout>

ReportPreviewDialog::ReportPreviewDialog(QPrinter &printer, PaintPages paint, QWidget *parent)
    : QDialog(parent)
    , m_preview(new QPrintPreviewWidget(&printer, this))
    , m_paint(std::move(paint))
{
    setObjectName(QStringLiteral("printPreview"));
    setWindowTitle(QStringLiteral("Print Preview"));
    m_preview->setObjectName(QStringLiteral("previewPages"));
    connect(m_preview, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter *target) { m_paint(*target); });

    auto *toolbar = new QToolBar(this);
    toolbar->addAction(QStringLiteral("Fit Width"), m_preview, &QPrintPreviewWidget::fitToWidth);
    toolbar->addAction(QStringLiteral("Whole Page"), m_preview, &QPrintPreviewWidget::fitInView);
    toolbar->addAction(QStringLiteral("Zoom In"), m_preview, [this] { m_preview->zoomIn(); });
    toolbar->addAction(QStringLiteral("Zoom Out"), m_preview, [this] { m_preview->zoomOut(); });
    toolbar->addSeparator();
    toolbar->addAction(QStringLiteral("One Page"), m_preview,
                       &QPrintPreviewWidget::setSinglePageViewMode);
    toolbar->addAction(QStringLiteral("Facing Pages"), m_preview,
                       &QPrintPreviewWidget::setFacingPagesViewMode);
    toolbar->addAction(QStringLiteral("All Pages"), m_preview,
                       &QPrintPreviewWidget::setAllPagesViewMode);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *print
            = buttons->addButton(QStringLiteral("&Print..."), QDialogButtonBox::ActionRole);
    print->setObjectName(QStringLiteral("previewPrint"));
    QPushButton *exportPdf
            = buttons->addButton(QStringLiteral("Export P&DF..."), QDialogButtonBox::ActionRole);
    exportPdf->setObjectName(QStringLiteral("previewExportPdf"));
    // Enter closes the preview; printing and exporting are asked for by name.
    print->setAutoDefault(false);
    exportPdf->setAutoDefault(false);
    buttons->addButton(QDialogButtonBox::Close)->setDefault(true);
    connect(print, &QPushButton::clicked, this, &ReportPreviewDialog::printRequested);
    connect(exportPdf, &QPushButton::clicked, this, &ReportPreviewDialog::exportRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(toolbar);
    layout->addWidget(m_preview, 1);
    layout->addWidget(buttons);

    // Tall enough to read a whole page: most of the screen's height, a page's width.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int height = screen.height() * 9 / 10;
    resize(std::min(screen.width(), height * 4 / 5), height);
}

int ReportPreviewDialog::pageCount()
{
    m_preview->updatePreview();
    return m_preview->pageCount();
}
