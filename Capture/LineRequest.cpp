// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LineRequest.h"

#include <cmath>

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>

#include "Encoders.h"

namespace Zentor::Capture {
namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("LineRequest", text);
}

/// An area is given by its width, which "x11" has always had.
std::optional<QRect> AreaIn(const QJsonObject& source)
{
    if (!source.contains(QLatin1String("w"))) {
        return std::nullopt;
    }
    const auto number = [&](const char* name) { return source.value(QLatin1String(name)).toInt(); };
    return QRect(number("x"), number("y"), number("w"), number("h"));
}

QStringList TextsIn(const QJsonValue& array)
{
    QStringList texts;
    const auto values = array.toArray();
    for (const auto& value : values) {
        texts << value.toString();
    }
    return texts;
}

QString ProblemOf(const RecordingRequest& request)
{
    if (!QDir::isAbsolutePath(request.file) || !HasKnownEnding(request.file)) {
        return Tr("\"file\" has to be an absolute path that ends in .mkv or .mp4");
    }
    if (request.framesPerSecond < LowestRate || request.framesPerSecond > HighestRate) {
        return Tr("\"fps\" is from %1 to %2").arg(LowestRate).arg(HighestRate);
    }
    if (!request.encoder.isEmpty() && !EncoderNames().contains(request.encoder)) {
        return Tr("there is no encoder \"%1\"").arg(request.encoder);
    }
    return request.screen < 0 ? Tr("\"screen\" is not negative") : QString();
}

} // namespace

std::int64_t NumberIn(const QJsonObject& line, const char* name)
{
    const double number = line.value(QLatin1String(name)).toDouble();
    constexpr double largest = 9e15;
    return std::abs(number) <= largest ? static_cast<std::int64_t>(std::floor(number)) : 0;
}

std::optional<Quality> QualityNamed(const QString& name)
{
    const QStringList names{QualityName::Small, QualityName::Normal, QualityName::High};
    const auto index = names.indexOf(name);
    return index < 0 ? std::nullopt : std::optional(static_cast<Quality>(index));
}

std::optional<RecordingRequest::Source> SourceNamed(const QString& name)
{
    const QStringList names{SourceType::X11, SourceType::Portal, SourceType::Test};
    const auto index = names.indexOf(name);
    return index < 0 ? std::nullopt : std::optional(static_cast<RecordingRequest::Source>(index));
}

std::optional<RecordingRequest> ReadRequest(const QJsonObject& line, QString* problem)
{
    const auto value = [&](const char* name) { return line.value(QLatin1String(name)); };
    const QJsonObject source = value("source").toObject();
    RecordingRequest request;
    const auto type = source.isEmpty()
        ? std::optional(UsualSource())
        : SourceNamed(source.value(QLatin1String("type")).toString(SourceType::X11));
    const auto quality = QualityNamed(value("quality").toString(QualityName::Normal));
    if (!type || !quality) {
        *problem = type ? Tr("there is no such quality") : Tr("there is no such source");
        return std::nullopt;
    }
    request.file = value("file").toString();
    request.source = *type;
    request.screen = source.value(QLatin1String("screen")).toInt();
    request.area = AreaIn(source);
    request.isPointerVisible = value("pointer").toBool(true);
    request.framesPerSecond = value("fps").toInt(request.framesPerSecond);
    request.sound = TextsIn(value("audio"));
    request.isSoundMixed = value("mix").toBool();
    request.encoder = value("encoder").toString();
    request.quality = *quality;
    request.reserve = NumberIn(line, "reserve");
    *problem = ProblemOf(request);
    return problem->isEmpty() ? std::optional(request) : std::nullopt;
}

} // namespace Zentor::Capture
