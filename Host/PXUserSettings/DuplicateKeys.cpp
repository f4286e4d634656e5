// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DuplicateKeys.h"

#include <vector>

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace Zentor::PX {
namespace {

/// An object that is being read.
struct OpenObject {
    QString name;
    QSet<QString> keys;
    /// With the object's name; its value may be an object, too.
    QString lastKey;
};

/// Where the text that begins with the quotation mark at \a begin has its other one.
int EndOfText(const QByteArray& json, int begin)
{
    int end = begin + 1;
    while (end < json.size() && json.at(end) != '"') {
        end += json.at(end) == '\\' ? 2 : 1;
    }
    return end;
}

bool IsFollowedByColon(const QByteArray& json, int position)
{
    while (position < json.size() && QByteArray(" \t\r\n").contains(json.at(position))) {
        ++position;
    }
    return position < json.size() && json.at(position) == ':';
}

/// What \a text, in its quotation marks, stands for.
QString Decoded(const QByteArray& text)
{
    return text.contains('\\') ? QJsonDocument::fromJson('[' + text + ']').array().at(0).toString()
                               : QString::fromUtf8(text.mid(1, text.size() - 2));
}

} // namespace

QStringList DuplicateKeys(const QByteArray& json)
{
    QStringList duplicates;
    std::vector<OpenObject> objects;
    for (int position = 0; position < json.size(); ++position) {
        const char character = json.at(position);
        if (character == '{') {
            objects.push_back({objects.empty() ? QString() : objects.back().lastKey, {}, {}});
        } else if (character == '}' && !objects.empty()) {
            objects.pop_back();
        } else if (character == '"') {
            const int begin = position;
            position = EndOfText(json, begin);
            if (objects.empty() || !IsFollowedByColon(json, position + 1)) {
                continue;
            }
            OpenObject& object = objects.back();
            const QString key = Decoded(json.mid(begin, position + 1 - begin));
            object.lastKey = object.name.isEmpty() ? key : object.name + QLatin1Char('.') + key;
            if (object.keys.contains(key)) {
                duplicates << object.lastKey;
            }
            object.keys.insert(key);
        }
    }
    return duplicates;
}

} // namespace Zentor::PX
