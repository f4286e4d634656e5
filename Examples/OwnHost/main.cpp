// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// The panel with a host of one's own: settings in an INI file, message boxes of Qt, a style sheet,
// the panel's texts from where it is installed. What the panel calls is in the files Host*.cpp.
#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>
#include <QVBoxLayout>

#include "IniSettings.h"
#include "RecordSchedulerWidget.h"

using namespace Zentor;

namespace {

class SystemLanguage final : public App::ILookAndFeelManager {
public:
    std::string GetLanguage() const override { return QLocale::system().name().toStdString(); }
};

QString StyleSheet()
{
    QFile file(QStringLiteral(":/panel.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// In the user's language or English, which is more than the texts in the source, too.
void InstallTranslations()
{
    auto* translator = new QTranslator(qApp);
    const auto load = [translator](const QLocale& locale) {
        return translator->load(locale, QStringLiteral("PXUiSchedulerWidgets"), QStringLiteral("_"),
                                QStringLiteral(TRANSLATIONS_DIR));
    };
    if (load(QLocale()) || load(QLocale(QStringLiteral("en")))) {
        QCoreApplication::installTranslator(translator);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    InstallTranslations();
    // Before the panel is built: it takes its width from the sheet while it is.
    application.setStyleSheet(StyleSheet());

    // One object is all that the panel reads, and the watcher that it reports to.
    const auto settings = std::make_shared<IniSettings>(QStringLiteral("settings.ini"));
    QWidget window;
    auto* panel = new PX::Scheduler::UI::RecordSchedulerWidget(std::make_shared<SystemLanguage>(),
                                                               settings, &window);
    (new QVBoxLayout(&window))->addWidget(panel);
    panel->SetSchedulerSettings(std::static_pointer_cast<PX::SchedulerSettings>(settings));
    panel->SetCaptureFinishActionSettings(
        std::static_pointer_cast<PX::CaptureFinishActionSettings>(settings));
    panel->SetPathSettings(std::static_pointer_cast<PX::PathsSettings>(settings));
    panel->SetSettingsWatcher(std::static_pointer_cast<PX::ISettingsWatcher>(settings));
    panel->RestoreSettings();
    window.show();
    return QApplication::exec();
}
