// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SectionReader.h"

#include <limits>

#include <QVariant>

namespace Zentor::PX {
namespace {

QString NameOf(const SectionReader& section, const QString& key)
{
    return section.Name().isEmpty() ? key : section.Name() + QLatin1Char('.') + key;
}

} // namespace

std::optional<bool> ToBool(const QJsonValue& value)
{
    return value.isBool() ? std::make_optional(value.toBool()) : std::nullopt;
}

std::optional<QString> ToText(const QJsonValue& value)
{
    return value.isString() ? std::make_optional(value.toString()) : std::nullopt;
}

std::optional<qint64> ToInteger(const QJsonValue& value)
{
    // The parser keeps integers apart from numbers with a fraction or beyond 64 bits.
    const QVariant variant = value.toVariant();
    bool isInteger = value.isString() || variant.userType() == QMetaType::LongLong;
    const qint64 integer = isInteger ? variant.toLongLong(&isInteger) : 0;
    return isInteger ? std::make_optional(integer) : std::nullopt;
}

std::optional<QByteArray> ToBytes(const QJsonValue& value)
{
    const auto decoded = QByteArray::fromBase64Encoding(value.toString().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    return value.isString() && decoded ? std::make_optional(*decoded) : std::nullopt;
}

QJsonValue FromInteger(qint64 integer)
{
    // JSON numbers are doubles to most programs, and to Qt when it writes them.
    constexpr qint64 exactInDouble = 1LL << std::numeric_limits<double>::digits;
    const bool isExact = -exactInDouble <= integer && integer <= exactInDouble;
    return isExact ? QJsonValue(integer) : QJsonValue(QString::number(integer));
}

SectionReader::SectionReader(const QJsonObject& fields, const QString& name, QStringList& problems)
    : m_fields(fields)
    , m_name(name)
    , m_problems(problems)
{
}

SectionReader::SectionReader(const SectionReader& parent, const QString& key)
    : SectionReader(parent.m_fields.value(key).toObject(), NameOf(parent, key), parent.m_problems)
{
    const QJsonValue section = parent.m_fields.value(key);
    if (!section.isUndefined() && !section.isObject()) {
        parent.AddProblem(key, "not an object");
    }
}

void SectionReader::AddProblem(const QString& key, const char* problem) const
{
    m_problems << NameOf(*this, key) + QLatin1String(": ") + QLatin1String(problem);
}
} // namespace Zentor::PX
