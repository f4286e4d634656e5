// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LookAndFeelManager.h"

#include <QLocale>

namespace Zentor::App {

LookAndFeelManager::LookAndFeelManager()
    : m_language(QLocale::system().name().toStdString())
{
}

std::string LookAndFeelManager::GetLanguage() const
{
    return m_language;
}

void LookAndFeelManager::SetLanguage(const std::string& language)
{
    m_language = language;
}

} // namespace Zentor::App
