// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "BoxAnswers.h"

#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QtTest>

namespace Zentor::Tests::RandomWalk {
namespace {

QString NameOf(const QMessageBox& box)
{
    if (box.icon() == QMessageBox::Information) {
        return QStringLiteral("leave");
    }
    if (box.icon() == QMessageBox::Warning) {
        return QStringLiteral("disk");
    }
    return QString(box.checkBox() != nullptr ? "delete" : "unsaved");
}

QAbstractButton* AcceptingButton(const QMessageBox& box)
{
    auto* yes = box.button(QMessageBox::Yes);
    return yes != nullptr ? yes : box.button(QMessageBox::Ok);
}

/// The button for \a way; none for the ways without one, and where there is none.
QAbstractButton* ButtonFor(const QMessageBox& box, Answer::Way way)
{
    switch (way) {
    case Answer::Accept:
        return AcceptingButton(box);
    case Answer::Cancel:
        return box.button(QMessageBox::Cancel);
    case Answer::DontAdd:
        return box.button(QMessageBox::No);
    default:
        return nullptr;
    }
}

void FollowLink(QMessageBox& box)
{
    auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    Q_EMIT text->linkActivated(QStringLiteral("pxz://ShowSettingsDialog/Files"));
}

void Give(const Answer& answer, QMessageBox& box)
{
    if (answer.isTicked && box.checkBox() != nullptr) {
        box.checkBox()->click();
    }
    if (auto* button = ButtonFor(box, answer.way)) {
        QTest::mouseClick(button, Qt::LeftButton);
    } else if (answer.way == Answer::Close) {
        box.close();
    } else if (answer.way == Answer::Enter) {
        QTest::keyClick(&box, Qt::Key_Return);
    } else if (answer.way == Answer::FollowLink && NameOf(box) == QLatin1String("disk")) {
        FollowLink(box);
    } else {
        QTest::keyClick(&box, Qt::Key_Escape);
    }
}

} // namespace

BoxAnswers::BoxAnswers()
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Look(); });
}

void BoxAnswers::Prepare(const std::vector<Answer>& answers)
{
    m_answers = answers;
    m_timer.start(0);
}

QStringList BoxAnswers::TakeBoxes()
{
    m_timer.stop();
    return std::exchange(m_boxes, {});
}

void BoxAnswers::Look()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    m_boxes << NameOf(*box);
    if (m_answers.empty()) {
        box->reject();
        return;
    }
    const Answer answer = m_answers.front();
    m_answers.erase(m_answers.begin());
    Give(answer, *box);
}

} // namespace Zentor::Tests::RandomWalk
