#pragma once

#include "HydraulicChecks.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;
struct CheckLine;

// The hydraulic checks of the last calculation as a table narrow enough for a side pane: a row of
// quantity with symbol, value and unit per check, and under a check with a limit a row across
// the table with the limit and the verdict. A value failing its limit is marked twice, by a
// colour and by its verdict's words ("Fails: ..."), for readers who cannot tell colours apart. An
// edit after the calculation greys the table as stale; a failed calculation shows its reason
// instead.
class ChecksPanel : public QWidget
{
    Q_OBJECT

public:
    enum Column { QuantityColumn, ValueColumn, UnitColumn, ColumnCount };

    explicit ChecksPanel(QWidget *parent = nullptr);

    // The checks of a successful calculation (or the reason they could not be computed).
    void showChecks(const HydraulicChecks &checks);
    // A calculation that failed: the table empties and `reason` is shown.
    void showFailure(const QString &reason);
    // The inputs changed since the checks were computed: the table stays, greyed, with a note.
    void markStale();
    // No calculation yet (start-up, New).
    void clear();

    bool isStale() const { return m_stale; }
    QTableWidget *table() const { return m_table; }
    QLabel *status() const { return m_status; }
    QPushButton *helpButton() const { return m_help; }

signals:
    void helpRequested();

private:
    void setStatus(const QString &text);
    void addRow(const CheckLine &line);
    void addVerdictRow(const CheckLine &line);

    QTableWidget *m_table;
    QLabel *m_status;
    QPushButton *m_help;
    bool m_stale = false;
};

// Help topic of the checks, in the "help" folder of the program folder.
extern const char *const kChecksHelpTopic; // "checks.html"
