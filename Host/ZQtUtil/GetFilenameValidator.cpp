// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QRegularExpressionValidator>

#include "HostInterfaces.h"

namespace Zentor::Util {

QValidator* GetFilenameValidator(QObject* parent)
{
    // What at least one of the common file systems refuses within a name.
    static const QRegularExpression usable(QStringLiteral("[^\\\\/:*?\"<>|\\p{Cc}]*"));
    return new QRegularExpressionValidator(usable, parent);
}

} // namespace Zentor::Util
