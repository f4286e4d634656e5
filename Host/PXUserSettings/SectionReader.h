// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// Reading of single values and of whole sections of a settings file.
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "HostData.h"

namespace Zentor::PX {

/// \a value as a flag; nothing when it is not true or false.
ZENTOR_HOST_API std::optional<bool> ToBool(const QJsonValue& value);
/// \a value as a text; nothing when it is of another type.
ZENTOR_HOST_API std::optional<QString> ToText(const QJsonValue& value);
/// \a value as an integer of 64 bits, which is written as a number or, beyond 2^53, as a text of
/// digits; nothing when it is neither.
ZENTOR_HOST_API std::optional<qint64> ToInteger(const QJsonValue& value);
/// \a value as bytes, which are written in base 64; nothing when it is no such text.
ZENTOR_HOST_API std::optional<QByteArray> ToBytes(const QJsonValue& value);

/// \a integer as ToInteger() reads it.
ZENTOR_HOST_API QJsonValue FromInteger(qint64 integer);

/// Reads the fields of one section of a settings file and notes those that cannot be used. Copies
/// note into the same list.
class ZENTOR_HOST_API SectionReader {
public:
    /// Reads \a fields, of which it has a copy. \a name names the section in \a problems, which
    /// must outlive the reader.
    SectionReader(const QJsonObject& fields, const QString& name, QStringList& problems);

    /// The section \a key of \a parent; an empty one when there is none, or, with a problem noted,
    /// when it is no section.
    SectionReader(const SectionReader& parent, const QString& key);

    /// The fields as they were found, those that are not known included.
    const QJsonObject& Fields() const { return m_fields; }
    /// The name of the section, with those of the sections around it, as in "window.place"; empty
    /// for the whole file.
    const QString& Name() const { return m_name; }

    /// Sets \a target to what \a convert makes of the field \a key, or leaves it when there is no
    /// such field. False, with a problem noted and \a target as it was, when \a convert returns
    /// nothing. \a convert is called with a QJsonValue and returns a std::optional.
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

    /// Read() of \a target by \a convert for a field \a key that must be there: false, with a
    /// problem noted, when it is not.
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
    QJsonObject m_fields;
    QString m_name;
    QStringList& m_problems;
};

} // namespace Zentor::PX
