// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "HostData.h"

namespace Zentor::PX {

// Conversions of single JSON values: nothing when the value is not of the type.

ZENTOR_HOST_API std::optional<bool> ToBool(const QJsonValue& value);
ZENTOR_HOST_API std::optional<QString> ToText(const QJsonValue& value);
/// An integer that is written as a number or, beyond 2^53, as a text of digits.
ZENTOR_HOST_API std::optional<qint64> ToInteger(const QJsonValue& value);
/// Bytes that are written in base 64.
ZENTOR_HOST_API std::optional<QByteArray> ToBytes(const QJsonValue& value);

/// \a integer as ToInteger() reads it.
ZENTOR_HOST_API QJsonValue FromInteger(qint64 integer);

/// Reads the fields of one section of a settings file and notes those that cannot be used.
class ZENTOR_HOST_API SectionReader {
public:
    /// \a name names the section in \a problems, which must outlive the reader.
    SectionReader(const QJsonObject& fields, const QString& name, QStringList& problems);

    /// The section \a key of \a parent; an empty one when there is none.
    SectionReader(const SectionReader& parent, const QString& key);

    const QJsonObject& Fields() const { return m_fields; }
    const QString& Name() const { return m_name; }

    /// Sets \a target to what \a convert makes of the field \a key, or leaves it when there is no
    /// such field. False, with a problem noted, when \a convert returns nothing.
    template <typename T, typename Conversion>
    bool Read(const QString& key, T& target, Conversion convert) const
    {
        const QJsonValue value = m_fields.value(key);
        if (value.isUndefined()) {
            return true;
        }
        const auto converted = convert(value);
        if (!converted) {
            AddProblem(key, "unusable value");
            return false;
        }
        target = *converted;
        return true;
    }

    /// The same for a field that must be there.
    template <typename T, typename Conversion>
    bool ReadRequired(const QString& key, T& target, Conversion convert) const
    {
        if (!m_fields.contains(key)) {
            AddProblem(key, "missing");
            return false;
        }
        return Read(key, target, convert);
    }

    /// Notes \a problem, in English and for the log, of the field \a key.
    void AddProblem(const QString& key, const char* problem) const;

private:
    QString NameOf(const QString& key) const;

    QJsonObject m_fields;
    QString m_name;
    QStringList& m_problems;
};

} // namespace Zentor::PX
