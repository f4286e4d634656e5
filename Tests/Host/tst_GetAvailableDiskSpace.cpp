// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <sys/statvfs.h>

#include <QTemporaryDir>

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

namespace {

std::int64_t SpaceOf(const QString& path)
{
    ioPath native;
    native = path.toStdString();
    return Util::GetAvailableDiskSpace(native);
}

/// Whether \a bytes are about what is free where \a path is: others write there meanwhile.
bool IsAboutFreeAt(const QString& path, std::int64_t bytes)
{
    struct statvfs volume { };
    if (statvfs(QFile::encodeName(path).constData(), &volume) != 0) {
        return false;
    }
    const auto expected = static_cast<qint64>(volume.f_bavail * volume.f_frsize);
    return bytes > 0 && std::abs(expected - bytes) < 500'000'000;
}

} // namespace

class tst_GetAvailableDiskSpace : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void tellsTheVolumeOfTheNearestFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("folder") << QString();
        QTest::newRow("missing folder") << QStringLiteral("/missing");
        QTest::newRow("missing folders") << QStringLiteral("/missing/1/2/3/");
        QTest::newRow("file") << QStringLiteral("/file");
        QTest::newRow("below a file") << QStringLiteral("/file/below");
        QTest::newRow("broken link") << QStringLiteral("/link");
        QTest::newRow("not Latin") << QString::fromUtf8("/\u9332\u753b");
        QTest::newRow("up and down") << QStringLiteral("/missing/../again");
    }

    void tellsTheVolumeOfTheNearestFolder()
    {
        QFETCH(QString, path);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("nowhere")),
                            folder.filePath(QStringLiteral("link"))));
        QVERIFY(IsAboutFreeAt(folder.path(), SpaceOf(folder.path() + path)));
    }

    void missingPathFromTheRoot()
    {
        QVERIFY(IsAboutFreeAt(QStringLiteral("/"), SpaceOf(QStringLiteral("/no such folder/a"))));
    }

    void relativePathCountsFromTheCurrentFolder()
    {
        QVERIFY(IsAboutFreeAt(QDir::currentPath(), SpaceOf(QStringLiteral("no/such"))));
        QVERIFY(IsAboutFreeAt(QDir::currentPath(), SpaceOf(QStringLiteral("."))));
    }

    void emptyPathCannotBeTold() { QVERIFY(SpaceOf({}) < 0); }
};

SCHEDULER_TEST_MAIN(tst_GetAvailableDiskSpace)
#include "tst_GetAvailableDiskSpace.moc"
