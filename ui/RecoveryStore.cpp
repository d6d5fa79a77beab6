#include "RecoveryStore.h"

#include "GlobalData.h"
#include "Prompts.h"
#include "frmMain.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

RecoveryStore::RecoveryStore(frmMain &window, Prompts &prompts, const GlobalData &folders)
    : m_window(window)
    , m_prompts(prompts)
    , m_recoveryFolder(recoveryFolderOf(folders.settingsFolder))
    , m_slot(autosaveFolderOf(folders.settingsFolder))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryStore::autosaveWhenIdle);
}

// A window that goes without a clean exit leaves its autosave for the next start.
RecoveryStore::~RecoveryStore() = default;

void RecoveryStore::setAutosaveInterval(int milliseconds)
{
    m_intervalMs = std::max(1, milliseconds);
}

QString RecoveryStore::autosavePath() const
{
    return QString::fromStdString(m_slot.projectPath());
}

void RecoveryStore::documentChanged(bool changed)
{
    if (!changed) {
        m_timer.stop();
        m_slot.remove();
        return;
    }
    m_sinceEdit.start();
    if (!m_timer.isActive())
        m_timer.start(m_intervalMs);
}

void RecoveryStore::autosaveWhenIdle()
{
    if (!m_window.isDataChanged())
        return;
    const int idle = std::min(kIdleMs, m_intervalMs);
    const qint64 sinceEdit = m_sinceEdit.isValid() ? m_sinceEdit.elapsed() : idle;
    if (sinceEdit < idle) {
        m_timer.start(static_cast<int>(idle - sinceEdit));
        return;
    }
    // A failed autosave is silent: a message every interval would stop the user's work, and
    // the next edit tries again.
    writeAutosave();
}

bool RecoveryStore::writeAutosave()
{
    // The autosave never takes the place of the user's own file.
    const QString own = QFileInfo(m_window.currentFilePath()).canonicalFilePath();
    if (!own.isEmpty() && own == QFileInfo(autosavePath()).canonicalFilePath())
        return false;
    const AutosaveInfo info {
        m_window.documentName().toStdString(), m_window.currentFilePath().toStdString(),
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString()
    };
    return m_slot.write(m_window.currentProject(), info).ok;
}

void RecoveryStore::keepAfterFailedSave()
{
    const RecoveryWriteResult copy = writeRecoveryCopy(
            m_recoveryFolder, m_window.documentName().toStdString(), m_window.currentProject());
    const QString path = QString::fromStdString(copy.path);
    if (copy.ok) {
        m_prompts.ShowErrorMessage(QStringLiteral("A recovery copy of the data was saved to:\r")
                                           + path,
                                   MessageStyle::Information, QLatin1String(kProgramTitle));
    } else {
        m_prompts.ShowErrorMessage(QStringLiteral("Unable to save a recovery copy of the data:\r")
                                           + path,
                                   MessageStyle::Exclamation, QLatin1String(kErrorTitle));
    }
}

void RecoveryStore::offerRecoveredFiles()
{
    std::vector<OrphanedAutosave> orphans = claimOrphanedAutosaves(m_slot.folder());
    if (orphans.empty())
        return;
    QList<RecoveryOffer> offers;
    for (const OrphanedAutosave &orphan : orphans) {
        offers.append({ QString::fromStdString(orphan.info.name),
                        QString::fromStdString(orphan.info.savedAt),
                        QString::fromStdString(orphan.info.originalPath) });
    }
    const RecoveryAnswer answer = m_prompts.askRecovery(offers);
    if (answer.action == RecoveryAnswer::Discard) {
        for (OrphanedAutosave &orphan : orphans)
            discardOrphan(orphan);
    } else if (answer.action == RecoveryAnswer::Open && answer.index >= 0
               && answer.index < static_cast<int>(orphans.size())) {
        OrphanedAutosave &chosen = orphans[static_cast<size_t>(answer.index)];
        // The orphan goes only once this instance's own autosave holds the document.
        if (m_window.openRecoveredProject(QString::fromStdString(chosen.projectPath),
                                          QString::fromStdString(chosen.info.name))
            && writeAutosave())
            discardOrphan(chosen);
    }
    // The orphans not chosen give their locks back and wait for a later start.
}

void RecoveryStore::endCleanly()
{
    m_timer.stop();
    m_slot.release();
}
