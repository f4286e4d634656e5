// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include "Protocol.h"

namespace Zentor::Capture {

/// What an encoder is set up for.
struct Encoding {
    QSize size;
    int framesPerSecond = 30;
    Quality quality = Quality::Normal;
    /// Less processor time and a larger file, where the encoder has the choice.
    bool isFast = false;
};

/// The names of all encoders that are of use, the best one first.
QStringList EncoderNames();

/// The part of a pipeline from frames to what a Matroska file takes.
QString EncoderDescription(const QString& name, const Encoding& encoding);

/// Whether Encoding::isFast makes a difference that can be made in the middle of a file.
bool HasFastMode(const QString& name);

/// Encodes a few frames, since an encoder that is there may need a device that is not. An encoder
/// of which that is known in this process is not tried again.
bool DoesEncoderWork(const QString& name);

/// Whether what it writes can be put into an MP4, too.
bool IsForMp4(const QString& name);

/// The first encoder that works, and that is for MP4 if that is wanted; empty when none does.
QString BestEncoder(bool isForMp4);

/// "works", "missing" or "fails" for each encoder.
QJsonObject EncoderStates();

} // namespace Zentor::Capture
