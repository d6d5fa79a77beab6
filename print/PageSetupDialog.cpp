#include "PageSetupDialog.h"

#include "NumberText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <cmath>

const std::array<QPageSize::PageSizeId, 6> kReportPaperSizes = {
    QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid,
    QPageSize::A4,     QPageSize::A3,    QPageSize::B5,
};

namespace {

// Equal within what the spin boxes show: `tolerance` is half their last decimal.
bool sameMargins(const PageMargins &a, const PageMargins &b, double tolerance)
{
    auto near = [tolerance](float x, float y) {
        return std::abs(static_cast<double>(x) - static_cast<double>(y)) < tolerance;
    };
    return a.ScaleCode == b.ScaleCode && near(a.Margin1, b.Margin1) && near(a.Margin2, b.Margin2)
            && near(a.Margin3, b.Margin3) && near(a.Margin4, b.Margin4);
}

} // namespace

PageSetupDialog::PageSetupDialog(const ReportPageSetup &setup, const PageMargins &fileMargins,
                                 QWidget *parent)
    : QDialog(parent)
    , m_fileMargins(fileMargins)
    , m_openedMargins(setup.marginsChosen ? setup.margins : fileMargins)
{
    setWindowTitle(QStringLiteral("Page Setup"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                                         | QDialogButtonBox::Reset);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QPushButton *reset = buttons->button(QDialogButtonBox::Reset);
    reset->setText(QStringLiteral("&Default Margins"));
    reset->setToolTip(QStringLiteral("The margins of Margins.ini in the program folder"));
    connect(reset, &QPushButton::clicked, this, [this] { setMargins(m_fileMargins); });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(createPaperGroup());
    layout->addWidget(createMarginGroup());
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 52);

    setPageSize(setup.pageSize.id());
    setOrientation(setup.orientation);
    setMargins(m_openedMargins);
}

QWidget *PageSetupDialog::createPaperGroup()
{
    auto *group = new QGroupBox(QStringLiteral("Paper"));
    m_paper = new QComboBox;
    for (QPageSize::PageSizeId id : kReportPaperSizes)
        m_paper->addItem(QPageSize::name(id), static_cast<int>(id));
    m_portrait = new QRadioButton(QStringLiteral("P&ortrait"));
    m_landscape = new QRadioButton(QStringLiteral("&Landscape"));
    auto *orientation = new QHBoxLayout;
    orientation->addWidget(m_portrait);
    orientation->addWidget(m_landscape);
    orientation->addStretch();

    auto *form = new QFormLayout(group);
    form->addRow(QStringLiteral("&Size:"), m_paper);
    form->addRow(QStringLiteral("Orientation:"), orientation);
    return group;
}

QWidget *PageSetupDialog::createMarginGroup()
{
    auto *group = new QGroupBox(QStringLiteral("Margins"));
    auto *form = new QFormLayout(group);
    const char *labels[] = { "L&eft:", "&Top:", "&Right:", "&Bottom:" };
    for (size_t edge = 0; edge < m_margin.size(); ++edge) {
        auto *box = new QDoubleSpinBox;
        box->setMinimum(0);
        m_margin[edge] = box;
        form->addRow(QString::fromLatin1(labels[edge]), box);
    }
    m_unitNote = new QLabel;
    m_unitNote->setWordWrap(true);
    form->addRow(m_unitNote);
    return group;
}

void PageSetupDialog::setPageSize(QPageSize::PageSizeId id)
{
    const int index = m_paper->findData(static_cast<int>(id));
    m_paper->setCurrentIndex(index >= 0 ? index : 0);
}

void PageSetupDialog::setOrientation(QPageLayout::Orientation orientation)
{
    (orientation == QPageLayout::Landscape ? m_landscape : m_portrait)->setChecked(true);
}

// The spin boxes work in the unit of the margins record, so that values from Margins.ini show
// exactly as the file gives them.
void PageSetupDialog::setMargins(const PageMargins &margins)
{
    const bool millimetres = margins.ScaleCode == kScaleMillimetres;
    const QString suffix = millimetres ? QStringLiteral(" mm") : QStringLiteral(" in");
    for (QDoubleSpinBox *box : m_margin) {
        box->setDecimals(millimetres ? 2 : 3);
        box->setMaximum(millimetres ? 250.0 : 10.0);
        box->setSingleStep(millimetres ? 1.0 : 0.05);
        box->setSuffix(suffix);
    }
    m_margin[Left]->setValue(static_cast<double>(margins.Margin1));
    m_margin[Top]->setValue(static_cast<double>(margins.Margin2));
    m_margin[Bottom]->setValue(static_cast<double>(margins.Margin3));
    m_margin[Right]->setValue(static_cast<double>(margins.Margin4));
    m_openedMargins.ScaleCode = margins.ScaleCode;
    m_unitNote->setText(millimetres
                                ? QStringLiteral("Margins in millimetres, from the sheet's edges.")
                                : QStringLiteral("Margins in inches, from the sheet's edges."));
}

PageMargins PageSetupDialog::margins() const
{
    PageMargins margins;
    margins.ScaleCode = m_openedMargins.ScaleCode;
    margins.Margin1 = RoundToSingle(m_margin[Left]->value());
    margins.Margin2 = RoundToSingle(m_margin[Top]->value());
    margins.Margin3 = RoundToSingle(m_margin[Bottom]->value());
    margins.Margin4 = RoundToSingle(m_margin[Right]->value());
    return margins;
}

ReportPageSetup PageSetupDialog::setup() const
{
    ReportPageSetup setup;
    setup.pageSize = QPageSize(static_cast<QPageSize::PageSizeId>(m_paper->currentData().toInt()));
    setup.orientation = m_landscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait;
    setup.margins = margins();
    const double tolerance = 0.5 * std::pow(10.0, -m_margin[Left]->decimals());
    setup.marginsChosen = !sameMargins(setup.margins, m_fileMargins, tolerance);
    if (!setup.marginsChosen)
        setup.margins = m_fileMargins;
    return setup;
}
