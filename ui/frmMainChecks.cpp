// The main window's channel pane: the hydraulic checks of the last Calculate beside the pages.

#include "frmMain.h"

#include "Calculate.h"
#include "ChecksPanel.h"
#include "HydraulicChecks.h"

#include <QStringList>

void frmMain::buildChannelPane()
{
    m_channelPane = ::buildChannelPane(*this, *m_menus.mnuView);
    connect(m_channelPane.checks, &ChecksPanel::helpRequested, this,
            [this] { showHelpFile(QLatin1String(kChecksHelpTopic)); });
}

// After every Calculate: the checks of a result, or the reason there is none.
void frmMain::showChecksOf(const CalculationOutcome &outcome)
{
    ChecksPanel &panel = *m_channelPane.checks;
    switch (outcome.status) {
    case CalculationOutcome::Status::Ok:
        panel.showChecks(computeHydraulicChecks(outcome.record));
        return;
    case CalculationOutcome::Status::Invalid:
        panel.showFailure(QString::fromStdString(outcome.fault.message));
        return;
    case CalculationOutcome::Status::Failed:
        break;
    }
    QStringList messages;
    for (const std::string &message : outcome.failureMessages)
        if (!message.empty())
            messages << QString::fromStdString(message);
    panel.showFailure(messages.isEmpty() ? QStringLiteral("the calculation failed.")
                                         : messages.join(QLatin1Char(' ')));
}
