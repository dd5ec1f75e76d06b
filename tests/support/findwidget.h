// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_FINDWIDGET_H
#define FMTASK_TESTS_FINDWIDGET_H

#include <QTest>
#include <QWidget>

// The widget of that class and object name below `root`. A missing one fails the running test,
// naming the widget; the test then goes on against a hidden stand-in that is never deleted, so
// later checks fail on their own instead of crashing the whole run.
template<class T = QWidget>
T *findWidget(const QObject *root, const QString &name)
{
    if (T *found = root->findChild<T *>(name))
        return found;
    QTest::qFail(qPrintable(QStringLiteral("no %1 named \"%2\"")
                                .arg(QLatin1String(T::staticMetaObject.className()), name)),
        __FILE__, __LINE__);
    return new T;
}

#endif // FMTASK_TESTS_FINDWIDGET_H
