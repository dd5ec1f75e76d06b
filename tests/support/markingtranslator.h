// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_MARKINGTRANSLATOR_H
#define FMTASK_TESTS_MARKINGTRANSLATOR_H

#include <QByteArrayList>
#include <QTranslator>

// Marks every text of the given translation contexts with a leading "~", as a translation
// installed at run time would change it.
struct MarkingTranslator : public QTranslator
{
    explicit MarkingTranslator(const QByteArrayList &markedContexts)
        : contexts(markedContexts)
    { }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return contexts.contains(context) ? QLatin1Char('~') + QString::fromUtf8(source)
                                          : QString();
    }

    QByteArrayList contexts;
};

#endif // FMTASK_TESTS_MARKINGTRANSLATOR_H
