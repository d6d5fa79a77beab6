// Pictures of the Design Explorer for a person to look at: a one-way sweep as a chart and a
// table, a two-way sweep as a heat map, a solved target, and the report with the explorer's page.
// swale_explorer_screenshots OUTPUT.
#include "DesignExplorer.h"
#include "ScreenshotSession.h"
#include "frmMain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>

namespace {
void setAxis(DesignExplorer &explorer, int number, const QString &symbol, const QString &from,
             const QString &to, int points)
{
    const QString n = QString::number(number);
    auto *input = explorer.findChild<QComboBox *>(QStringLiteral("input") + n);
    input->setCurrentIndex(input->findText(QStringLiteral("[%1]").arg(symbol), Qt::MatchEndsWith));
    explorer.findChild<QLineEdit *>(QStringLiteral("from") + n)->setText(from);
    explorer.findChild<QLineEdit *>(QStringLiteral("to") + n)->setText(to);
    explorer.findChild<QSpinBox *>(QStringLiteral("points") + n)->setValue(points);
}

void runAndWait(DesignExplorer &explorer)
{
    QSignalSpy finished(&explorer, &DesignExplorer::sweepFinished);
    if (explorer.startSweep())
        finished.wait(60000);
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ScreenshotSession session;
    if (!session.start(argc, argv, "swale_explorer_screenshots"))
        return 64;
    frmMain window(session.prompts, session.folders);
    window.OpenDataFile(QApplication::applicationDirPath()
                                + QStringLiteral("/Examples/Roadside swale - required length.swl"),
                        OpenExample);
    window.showDesignExplorer();
    DesignExplorer &explorer = *window.designExplorer();
    setAxis(explorer, 1, QStringLiteral("B"), QStringLiteral("-2"), QStringLiteral("12"), 400);
    runAndWait(explorer);
    session.save(&explorer, QStringLiteral("explorer-chart"));
    explorer.findChild<QTabWidget *>()->setCurrentIndex(1);
    session.save(&explorer, QStringLiteral("explorer-table"));

    explorer.findChild<QComboBox *>(QStringLiteral("solveResult"))->setCurrentIndex(0);
    explorer.findChild<QLineEdit *>(QStringLiteral("target"))->setText(QStringLiteral("1200"));
    explorer.solve();
    session.save(&explorer, QStringLiteral("explorer-solved"));

    // The report with the explorer's page, as Export PDF writes it.
    explorer.findChild<QCheckBox *>(QStringLiteral("onReport"))->setChecked(true);
    window.calculateButton()->click();
    session.prompts.answerSave(QString::fromLocal8Bit(argv[1])
                               + QStringLiteral("/explorer-report.pdf"));
    window.exportPdfCommand();

    explorer.findChild<QCheckBox *>(QStringLiteral("twoWay"))->setChecked(true);
    setAxis(explorer, 1, QStringLiteral("B"), QStringLiteral("1"), QStringLiteral("12"), 60);
    setAxis(explorer, 2, QStringLiteral("Sc"), QStringLiteral("0.002"), QStringLiteral("0.05"), 40);
    runAndWait(explorer);
    session.save(&explorer, QStringLiteral("explorer-heatmap"));
    return 0;
}
