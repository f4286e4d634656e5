// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// Paints an icon as a picture, while the application is built.
//
//   render-icon <icon.svg> <picture.png> <width and height in pixels>
#include <cstdio>

#include <QGuiApplication>
#include <QImageReader>

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: render-icon <icon.svg> <picture.png> <pixels>\n", stderr);
        return 2;
    }
    const int pixels = arguments.at(3).toInt();
    QImageReader reader(arguments.at(1));
    reader.setScaledSize({pixels, pixels});
    const QImage picture = reader.read();
    if (picture.isNull()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(arguments.at(1)),
                     qPrintable(reader.errorString()));
        return 1;
    }
    return picture.save(arguments.at(2)) ? 0 : 1;
}
