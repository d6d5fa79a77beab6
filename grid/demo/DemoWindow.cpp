#include "DemoWindow.h"

#include "RatingCurveGrid.h"
#include "RdcGridA.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

DemoWindow::DemoWindow(QWidget *parent)
    : QWidget(parent)
{
    setWindowTitle(QStringLiteral("Rating curve grid"));
    m_grid = new RdcGridA(this);
    setupRatingCurveGrid(*m_grid);
    m_grid->setFixedWidth(m_grid->sizeHint().width());
    m_grid->setMinimumHeight(m_grid->HeaderRowHeight() + 12 * m_grid->DataRowHeight());

    auto *fill = new QPushButton(QStringLiteral("Fill with a rating curve"), this);
    auto *clear = new QPushButton(QStringLiteral("Clear"), this);
    m_enabled = new QCheckBox(QStringLiteral("Enabled"), this);
    m_enabled->setChecked(true);
    m_readOnly = new QCheckBox(QStringLiteral("Read only"), this);
    m_status = new QLabel(this);
    m_status->setMinimumWidth(220);
    m_status->setWordWrap(true);

    auto *side = new QVBoxLayout;
    side->addWidget(fill);
    side->addWidget(clear);
    side->addWidget(m_enabled);
    side->addWidget(m_readOnly);
    side->addWidget(m_status);
    side->addStretch();
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_grid);
    layout->addLayout(side);

    connect(fill, &QPushButton::clicked, this, [this] { fillSampleCurve(); });
    connect(clear, &QPushButton::clicked, this, [this] {
        m_grid->Clear();
        m_grid->setChanged(false);
        showStatus();
    });
    connect(m_enabled, &QCheckBox::toggled, this, [this](bool on) { setGridEnabled(on); });
    connect(m_readOnly, &QCheckBox::toggled, this, [this](bool on) { m_grid->setReadOnly(on); });
    connect(m_grid, &RdcGridA::Change, this, [this] {
        ++m_changeCount;
        showStatus();
    });
    connect(m_grid, &RdcGridA::RightMouseMenu, this, [this] {
        m_status->setText(m_status->text() + QStringLiteral("\nRight mouse menu requested"));
    });
    showStatus();
}

void DemoWindow::fillSampleCurve()
{
    // A curb inlet working as a weir: Q = Cw L h^1.5 with Cw = 3.0, L = 2 ft, h in ft.
    m_grid->Clear();
    for (int row = 1; row <= 15; ++row) {
        const double depthInches = (row - 1) * 0.5;
        const double discharge = 3.0 * 2.0 * std::pow(depthInches / 12.0, 1.5);
        m_grid->setText(row, 1, QString::number(depthInches));
        m_grid->setText(row, 2, QString::number(discharge, 'f', 3));
    }
    m_grid->setChanged(false);
    m_grid->Refresh();
    showStatus();
}

void DemoWindow::setGridEnabled(bool enabled)
{
    m_enabled->setChecked(enabled);
    m_grid->setEnabled(enabled);
    m_grid->Refresh();
}

void DemoWindow::showStatus()
{
    m_status->setText(QStringLiteral("Changed: %1\nChange raised %2 times")
                              .arg(m_grid->Changed() ? QStringLiteral("yes") : QStringLiteral("no"))
                              .arg(m_changeCount));
}
