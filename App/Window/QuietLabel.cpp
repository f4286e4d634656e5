// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "QuietLabel.h"

#include <QAccessibleWidget>

namespace Zentor::Desktop {
namespace {

class QuietLabelAccess final : public QAccessibleWidget {
public:
    explicit QuietLabelAccess(QuietLabel* label)
        : QAccessibleWidget(label, QAccessible::StaticText)
        , m_label(*label)
    {
    }

    QString text(QAccessible::Text what) const override
    {
        return what == QAccessible::Name ? m_label.SpokenText() : QAccessibleWidget::text(what);
    }

private:
    const QuietLabel& m_label;
};

QAccessibleInterface* CreateAccess(const QString& className, QObject* object)
{
    return className == QLatin1String(QuietLabel::staticMetaObject.className())
        ? new QuietLabelAccess(static_cast<QuietLabel*>(object))
        : nullptr;
}

void InstallAccess()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(CreateAccess);
        return true;
    }();
    Q_UNUSED(isInstalled);
}

} // namespace

QuietLabel::QuietLabel(const QString& objectName, QWidget* parent)
    : ZLabel(parent)
{
    InstallAccess();
    setObjectName(objectName);
}

void QuietLabel::SetSubject(const QString& subject)
{
    if (subject != accessibleName()) {
        setAccessibleName(subject);
    }
}

} // namespace Zentor::Desktop
