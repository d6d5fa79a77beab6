#include "ChecksPanel.h"

#include "HydraulicCheckLines.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

const char *const kChecksHelpTopic = "checks.html";

namespace {
// A failing value's row: a light red behind dark text keeps the contrast for every reader.
const QColor kFailingBackground(0xF8, 0xD0, 0xD0);
const QColor kFailingText(0x8B, 0x00, 0x00);
const QColor kStaleFailingBackground(0xF2, 0xEA, 0xEA);

QTableWidgetItem *cell(const std::string &text, bool fails)
{
    auto *item = new QTableWidgetItem(QString::fromStdString(text));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    if (fails) {
        item->setBackground(kFailingBackground);
        item->setForeground(kFailingText);
    }
    return item;
}
} // namespace

ChecksPanel::ChecksPanel(QWidget *parent)
    : QWidget(parent)
    , m_table(new QTableWidget(0, ColumnCount, this))
    , m_status(new QLabel(this))
    , m_help(new QPushButton(QStringLiteral("Help on the checks"), this))
{
    setObjectName(QStringLiteral("checksPanel"));
    m_table->setObjectName(QStringLiteral("checksTable"));
    m_table->setHorizontalHeaderLabels(
            { QStringLiteral("Check"), QStringLiteral("Value"), QStringLiteral("Unit") });
    m_table->verticalHeader()->hide();
    m_table->setWordWrap(true);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(QuantityColumn, QHeaderView::Stretch);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_status->setObjectName(QStringLiteral("checksStatus"));
    m_status->setWordWrap(true);
    m_help->setObjectName(QStringLiteral("checksHelp"));
    connect(m_help, &QPushButton::clicked, this, &ChecksPanel::helpRequested);

    auto *title = new QLabel(QStringLiteral("<b>Hydraulic checks</b>"), this);
    auto *top = new QHBoxLayout;
    top->addWidget(title);
    top->addStretch();
    top->addWidget(m_help);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_status);
    layout->addWidget(m_table, 1);
    clear();
}

void ChecksPanel::setStatus(const QString &text)
{
    m_status->setText(text);
    m_status->setVisible(!text.isEmpty());
}

void ChecksPanel::showChecks(const HydraulicChecks &checks)
{
    if (!checks.fault.empty()) {
        showFailure(QString::fromStdString(checks.fault));
        return;
    }
    m_table->clearSpans();
    m_table->setRowCount(0);
    for (const CheckLine &line : hydraulicCheckLines(checks)) {
        addRow(line);
        if (!line.limit.empty() || !line.verdict.empty())
            addVerdictRow(line);
    }
    m_table->resizeRowsToContents();
    m_stale = false;
    m_table->setEnabled(true);
    setStatus(QString());
}

void ChecksPanel::addRow(const CheckLine &line)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    const std::string quantity
            = line.symbol.empty() ? line.quantity : line.quantity + ", " + line.symbol;
    m_table->setItem(row, QuantityColumn, cell(quantity, line.fails));
    QTableWidgetItem *value = cell(line.value, line.fails);
    value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_table->setItem(row, ValueColumn, value);
    m_table->setItem(row, UnitColumn, cell(line.unit, line.fails));
}

// The limit and the verdict in words, across the whole table under their check.
void ChecksPanel::addVerdictRow(const CheckLine &line)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    std::string text = line.verdict;
    if (!line.limit.empty())
        text = "Limit: " + line.limit + ". " + text;
    QTableWidgetItem *item = cell(text + ".", line.fails);
    QFont font = item->font();
    font.setItalic(true);
    item->setFont(font);
    m_table->setItem(row, QuantityColumn, item);
    m_table->setSpan(row, QuantityColumn, 1, ColumnCount);
}

void ChecksPanel::showFailure(const QString &reason)
{
    m_table->clearSpans();
    m_table->setRowCount(0);
    m_stale = false;
    setStatus(QStringLiteral("No checks: ") + reason);
}

void ChecksPanel::markStale()
{
    if (m_table->rowCount() == 0 || m_stale)
        return;
    m_stale = true;
    m_table->setEnabled(false); // greys the whole table
    // The failing rows carry their own colours: grey them too, keeping a trace of the tint.
    const QColor greyText = palette().color(QPalette::Disabled, QPalette::Text);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        for (int column = 0; column < ColumnCount; ++column) {
            QTableWidgetItem *item = m_table->item(row, column);
            if (item && item->background().style() != Qt::NoBrush) {
                item->setBackground(kStaleFailingBackground);
                item->setForeground(greyText);
            }
        }
    }
    setStatus(QStringLiteral("Stale: the inputs changed after the last Calculate. Calculate "
                             "again to update the checks."));
}

void ChecksPanel::clear()
{
    m_table->clearSpans();
    m_table->setRowCount(0);
    m_stale = false;
    m_table->setEnabled(true);
    setStatus(QStringLiteral("Calculate to see the checks of the channel at normal depth."));
}
