// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QDBusConnection>
#include <QDesktopServices>
#include <QUrl>

#include "ShowInFolder.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

const char* const Service = "org.freedesktop.FileManager1";

/// Takes the place of the desktop's file manager.
class FileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    FileManager()
    {
        auto bus = QDBusConnection::sessionBus();
        m_isThere = bus.registerService(Service)
            && bus.registerObject("/org/freedesktop/FileManager1", this,
                                  QDBusConnection::ExportAllSlots);
    }
    ~FileManager() override
    {
        QDBusConnection::sessionBus().unregisterObject("/org/freedesktop/FileManager1");
        QDBusConnection::sessionBus().unregisterService(Service);
    }

    bool IsThere() const { return m_isThere; }

    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList& uris, const QString& /*startupId*/) { shown << uris; }

private:
    bool m_isThere = false;
};

/// Takes the place of the program for folders.
class Opener : public QObject {
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList opened;

public Q_SLOTS:
    void Open(const QUrl& url) { opened << url.toLocalFile(); }
};

} // namespace

class tst_ShowInFolder : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void asksTheFileManager()
    {
        const FileManager manager;
        QVERIFY(manager.IsThere());
        const Opener opener;
        QFile file(m_folder.filePath("100 % \"ä\" #1.mkv"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        Desktop::ShowInFolder(file.fileName(), this);
        QTRY_COMPARE_WITH_TIMEOUT(manager.shown.size(), 1, Patience);
        QCOMPARE(QUrl(manager.shown.first()).toLocalFile(), file.fileName());
        QVERIFY(manager.shown.first().contains("%23"));
        QCOMPARE(opener.opened, QStringList());
    }

    void opensTheFolderWithoutOne()
    {
        const Opener opener;
        QFile file(m_folder.filePath("a.mkv"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        Desktop::ShowInFolder(file.fileName(), this);
        QTRY_COMPARE_WITH_TIMEOUT(opener.opened, QStringList{m_folder.path()}, Patience);
    }

    void opensTheFolderOfAFileThatIsGone()
    {
        const FileManager manager;
        const Opener opener;
        Desktop::ShowInFolder(m_folder.filePath("gone.mkv"), this);
        QTRY_COMPARE_WITH_TIMEOUT(opener.opened, QStringList{m_folder.path()}, Patience);
        QCOMPARE(manager.shown, QStringList());
    }

private:
    const QTemporaryDir m_folder;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_ShowInFolder)

#include "tst_ShowInFolder.moc"
