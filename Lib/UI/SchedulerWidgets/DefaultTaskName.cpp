// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "DefaultTaskName.h"

#include <algorithm>
#include <string>

#include <boost/multiprecision/cpp_int.hpp>

#include <QCoreApplication>

namespace Zentor::PX::Scheduler::UI {
namespace {

using boost::multiprecision::cpp_int;

/// Reads octal digits in pieces that fit one word of the number: in one go, Boost 1.74 reads an
/// unset word when a digit lies across two of them.
cpp_int ParseOctal(const std::string& digits)
{
    constexpr std::size_t pieceLength = 20;
    constexpr unsigned bitsPerDigit = 3;
    cpp_int number = 0;
    for (std::size_t position = 0; position < digits.size(); position += pieceLength) {
        std::string piece = "0";
        piece.append(digits, position, pieceLength);
        number <<= bitsPerDigit * static_cast<unsigned>(piece.size() - 1);
        number += cpp_int(piece);
    }
    return number;
}

/// Decimal digits of any script.
bool IsNumber(const QString& text)
{
    return !text.isEmpty()
        && std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.isDigit(); });
}

cpp_int ParseNumber(const std::string& digits)
{
    return digits.front() == '0' ? ParseOctal(digits) : cpp_int(digits);
}

} // namespace

QString DefaultTaskName(const std::vector<RecordTime>& records)
{
    const auto prefix = QCoreApplication::translate("ScheduleRecordTableWidget", "Task ");
    cpp_int highest = 0;
    for (const auto& record : records) {
        if (!record.title.startsWith(prefix)) {
            continue;
        }
        const auto rest = record.title.mid(prefix.length());
        if (IsNumber(rest)) {
            highest = std::max(highest, ParseNumber(rest.toStdString()));
        }
    }
    ++highest;
    return prefix + QString::fromStdString(highest.str());
}

} // namespace Zentor::PX::Scheduler::UI
