#include "SizeText.h"

#include <QLocale>

namespace Zentor::Desktop {

QString Isolated(const QString& text)
{
    constexpr char16_t firstStrongIsolate = 0x2068;
    constexpr char16_t popDirectionalIsolate = 0x2069;
    return QChar(firstStrongIsolate) + text + QChar(popDirectionalIsolate);
}

QString SizeText(std::int64_t bytes)
{
    return Isolated(QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat));
}

} // namespace Zentor::Desktop
