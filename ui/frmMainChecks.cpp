// The main window's channel pane: the drawings and the hydraulic checks of the last Calculate
// beside the pages.

#include "frmMain.h"

#include "Calculate.h"
#include "ChannelPane.h"
#include "ChannelPaneDock.h"
#include "ChecksPanel.h"
#include "HydraulicChecks.h"
#include "Prompts.h"

#include <QStringList>

#include <optional>

void frmMain::buildChannelPane()
{
    m_channelPane = std::make_unique<ChannelPaneDock>(*this, m_menus, m_prompts,
                                                      [this] { return GetDataFolder(); });
    m_checks = new ChecksPanel;
    channelPane()->addPanel(m_checks);
    connect(m_checks, &ChecksPanel::helpRequested, this,
            [this] { showHelpFile(QLatin1String(kChecksHelpTopic)); });
}

ChannelPane *frmMain::channelPane() const
{
    return m_channelPane->pane();
}

// The reason a Calculate gave no result, as the pane says it in place of the drawings.
static QString failureReason(const CalculationOutcome &outcome)
{
    if (outcome.status == CalculationOutcome::Status::Invalid)
        return QString::fromStdString(outcome.fault.message);
    QStringList messages;
    for (const std::string &message : outcome.failureMessages)
        if (!message.empty())
            messages << QString::fromStdString(message);
    return messages.isEmpty() ? QStringLiteral("the calculation failed.")
                              : messages.join(QLatin1Char(' '));
}

// After every Calculate: the drawings and checks of a result, or the reason there are none.
void frmMain::showChannelOf(const CalculationOutcome &outcome)
{
    if (outcome.status != CalculationOutcome::Status::Ok) {
        const QString reason = failureReason(outcome);
        channelPane()->showFailure(reason);
        m_checks->showFailure(reason);
        return;
    }
    const HydraulicChecks checks = computeHydraulicChecks(outcome.record);
    std::optional<double> criticalDepth;
    if (checks.fault.empty())
        criticalDepth = checks.criticalDepth;
    channelPane()->showCalculation(outcome.record, criticalDepth);
    m_checks->showChecks(checks);
}
