// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingFiles.h"

#include <QFileInfo>

namespace Zentor::Desktop {

RecordingFiles::RecordingFiles(QObject* parent)
    : QObject(parent)
{
    // One after the other: a volume that hangs must not take more than a thread.
    m_pool.setMaxThreadCount(1);
}

RecordingFiles::~RecordingFiles()
{
    m_pool.clear();
    m_pool.waitForDone();
}

std::optional<RecordingFiles::Facts> RecordingFiles::FactsOf(const QString& path) const
{
    const auto found = m_facts.find(path);
    return found == m_facts.end() ? std::nullopt : std::optional(*found);
}

void RecordingFiles::Look(const QStringList& paths)
{
    for (const QString& path : paths) {
        if (path.isEmpty() || m_lookedAt.contains(path)) {
            continue;
        }
        m_lookedAt.insert(path);
        m_pool.start([this, path] {
            const QFileInfo info(path);
            const Facts facts{info.isFile(), info.size(), info.lastModified()};
            QMetaObject::invokeMethod(
                this, [this, path, facts] { TakeOver(path, facts); }, Qt::QueuedConnection);
        });
    }
}

void RecordingFiles::Forget()
{
    m_lookedAt.clear();
}

void RecordingFiles::TakeOver(const QString& path, const Facts& facts)
{
    const auto known = FactsOf(path);
    if (known && known->exists == facts.exists && known->bytes == facts.bytes
        && known->changed == facts.changed) {
        return;
    }
    m_facts.insert(path, facts);
    Q_EMIT Changed(path);
}

} // namespace Zentor::Desktop
