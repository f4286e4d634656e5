// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "TranslationFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace Zentor::Tests {
namespace {

/// Adds what \a reader has come to, a translation, to the last of \a entries.
void ReadTranslation(QXmlStreamReader& reader, std::vector<Translation>& entries)
{
    Translation entry = entries.back();
    entry.state = reader.attributes().value(QStringLiteral("type")).toString();
    entry.translation = reader.readElementText(QXmlStreamReader::IncludeChildElements);
    entries.back() = entry;
    if (!entry.source.contains(QLatin1String("%n"))) {
        return;
    }
    entries.pop_back();
    const QStringList forms =
        entry.translation.trimmed().split(QRegularExpression(QStringLiteral("\\s*\n\\s*")));
    for (const QString& form : forms) {
        ++entry.form;
        entry.translation = form;
        entries.push_back(entry);
    }
}

} // namespace

std::vector<Translation> ReadTranslations(const QString& path)
{
    std::vector<Translation> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return entries;
    }
    QXmlStreamReader reader(&file);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            entries.push_back({context, reader.readElementText(), {}, {}, -1});
        } else if (reader.name() == QLatin1String("translation")) {
            ReadTranslation(reader, entries);
        }
    }
    return entries;
}

bool IsInUse(const Translation& entry)
{
    constexpr int mostNumbers = 200;
    const QByteArray context = entry.context.toUtf8();
    const QByteArray source = entry.source.toUtf8();
    for (int number = 0; entry.form >= 0 && number < mostNumbers; ++number) {
        const QString expected =
            QString(entry.translation).replace(QLatin1String("%n"), QString::number(number));
        if (QCoreApplication::translate(context, source, nullptr, number) == expected) {
            return true;
        }
    }
    return entry.form < 0 && QCoreApplication::translate(context, source) == entry.translation;
}

QStringList Keys(const std::vector<Translation>& entries)
{
    QStringList keys;
    for (const Translation& entry : entries) {
        if (entry.form <= 0) {
            keys << entry.context + QStringLiteral(": ") + entry.source;
        }
    }
    keys.sort();
    return keys;
}

} // namespace Zentor::Tests
