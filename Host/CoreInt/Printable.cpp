// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Printable.h"

namespace Zentor::Util {
namespace {

bool IsControl(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        switch (character.direction()) {
        case QChar::DirLRE:
        case QChar::DirRLE:
        case QChar::DirLRO:
        case QChar::DirRLO:
        case QChar::DirPDF:
        case QChar::DirLRI:
        case QChar::DirRLI:
        case QChar::DirFSI:
        case QChar::DirPDI:
            return true;
        default:
            // Joiners and marks are part of words and do not reach beyond them.
            return false;
        }
    default:
        return false;
    }
}

QString Escaped(QChar character)
{
    const uint code = character.unicode();
    return code < 0x100 ? QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'))
                        : QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
}

} // namespace

QString PrintableText(const QString& text)
{
    QString printable;
    printable.reserve(text.size());
    for (const QChar character : text) {
        if (IsControl(character)) {
            printable += Escaped(character);
        } else {
            printable += character;
        }
    }
    return printable;
}

std::string Printable(const QString& text)
{
    return PrintableText(text).toStdString();
}

} // namespace Zentor::Util
