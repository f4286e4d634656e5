#include "RecorderProgram.h"

#include <QCoreApplication>
#include <QDir>

namespace Zentor::Schedule {

QString RecorderProgram()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("px-recorder"));
}

} // namespace Zentor::Schedule
