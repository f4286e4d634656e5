// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "HostData.h"

namespace Zentor {

ioPath& ioPath::operator=(const std::string& utf8Path)
{
    m_utf8Path = utf8Path;
    return *this;
}

std::string ioPath::ToUtf8() const
{
    return m_utf8Path;
}

} // namespace Zentor
