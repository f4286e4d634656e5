// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Remuxer.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>

#include "Protocol.h"

namespace Zentor::Capture {

Remuxer::Remuxer(QString input, QString output)
    : m_input(std::move(input))
    , m_output(std::move(output))
    , m_asMp4(m_output.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive))
{
}

Remuxer::~Remuxer()
{
    m_copy.reset();
    m_check.reset();
    // Nothing is there any more once it has got its name.
    m_file.Remove();
}

void Remuxer::Start()
{
    const auto failure = m_file.Create(
        QStringLiteral("%1.%2.part").arg(m_output).arg(QCoreApplication::applicationPid()));
    if (failure) {
        Q_EMIT Failed(*failure);
        return;
    }
    m_copy = std::make_unique<PacketReader>(m_input, false);
    connect(m_copy.get(), &PacketReader::Finished, this, &Remuxer::Check);
    connect(m_copy.get(), &PacketReader::Failed, this, &Remuxer::Fail);
    m_copy->CopyTo(m_file.Location(), m_asMp4);
}

void Remuxer::Check()
{
    if (!m_file.Close()) {
        Fail(tr("the copy could not be brought to the disk"));
        return;
    }
    m_check = std::make_unique<PacketReader>(m_file.Path(), m_asMp4);
    connect(m_check.get(), &PacketReader::Finished, this, &Remuxer::Conclude);
    connect(m_check.get(), &PacketReader::Failed, this, &Remuxer::Fail);
    m_check->Count();
}

void Remuxer::Conclude()
{
    if (m_copy->Packets().empty() || m_copy->Packets() != m_check->Packets()) {
        Fail(tr("the copy is not complete"));
    } else if (!TakeName()) {
        Fail(tr("%1 exists already").arg(m_output));
    } else {
        Q_EMIT Finished();
    }
}

bool Remuxer::TakeName() const
{
    const QByteArray from = QFile::encodeName(m_file.Path());
    const QByteArray to = QFile::encodeName(m_output);
    if (m_input == m_output) {
        return std::rename(from.constData(), to.constData()) == 0;
    }
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    // Not every file system can refuse to replace a file.
    return errno == EINVAL && access(to.constData(), F_OK) != 0
        && std::rename(from.constData(), to.constData()) == 0;
}

void Remuxer::Fail(const QString& reason)
{
    m_file.Remove();
    Q_EMIT Failed({Code::Remux,
                   m_input == m_output
                       ? tr("%1 could not be repaired: %2").arg(m_input, reason)
                       : tr("%1 could not be copied to %2: %3").arg(m_input, m_output, reason)});
}

} // namespace Zentor::Capture
