// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_FINDWIDGET_H
#define FMTASK_TESTS_FINDWIDGET_H

#include <QAbstractButton>
#include <QCheckBox>
#include <QTest>
#include <QWidget>

#include <type_traits>

namespace FindWidget {

// The class that stands in for a missing widget of an abstract class.
template<class T>
struct StandIn
{
    using Type = T;
};
template<>
struct StandIn<QAbstractButton>
{
    using Type = QCheckBox;
};

} // namespace FindWidget

// The widget of that class and object name below `root`. A missing one fails the running test,
// naming the widget; the test then goes on against a hidden stand-in of the class that is never
// deleted, so later checks fail on their own instead of crashing the whole run.
template<class T = QWidget>
T *findWidget(const QObject *root, const QString &name)
{
    if (T *found = root->findChild<T *>(name))
        return found;
    QTest::qFail(qPrintable(QStringLiteral("no %1 named \"%2\" below \"%3\"")
                                .arg(QLatin1String(T::staticMetaObject.className()), name,
                                    root->objectName())),
        __FILE__, __LINE__);
    using Type = typename FindWidget::StandIn<T>::Type;
    static_assert(!std::is_abstract_v<Type>, "name a stand-in class for this abstract class");
    return new Type;
}

#endif // FMTASK_TESTS_FINDWIDGET_H
