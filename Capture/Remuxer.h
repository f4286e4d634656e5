// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include "Failure.h"
#include "OutputFile.h"
#include "PacketReader.h"

namespace Zentor::Capture {

/// Writes the packets of a Matroska file into a new file, as they are, and proves that all of them
/// arrived there before the new file gets its name. The original is left to the caller.
class Remuxer final : public QObject {
    Q_OBJECT

public:
    /// The ending of \a output decides about the format. It may be \a input, whose place it takes;
    /// any other existing file is left alone.
    Remuxer(QString input, QString output);
    /// Leaves nothing behind when it has not finished.
    ~Remuxer() override;

    void Start();

Q_SIGNALS:
    void Finished();
    void Failed(const Failure& failure);

private:
    void Check();
    void Conclude();
    bool TakeName() const;
    void Fail(const QString& reason);

    const QString m_input;
    const QString m_output;
    const bool m_asMp4;
    OutputFile m_file;
    QString m_working;
    std::unique_ptr<PacketReader> m_copy;
    std::unique_ptr<PacketReader> m_check;
};

} // namespace Zentor::Capture
