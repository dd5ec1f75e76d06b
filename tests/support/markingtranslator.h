// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_MARKINGTRANSLATOR_H
#define FMTASK_TESTS_MARKINGTRANSLATOR_H

#include <QByteArray>
#include <QTranslator>

// Marks every text of one translation context with a leading "~", as a translation installed at
// run time would change it.
struct MarkingTranslator : public QTranslator
{
    explicit MarkingTranslator(const char *markedContext)
        : context(markedContext)
    { }

    bool isEmpty() const override { return false; }

    QString translate(const char *textContext, const char *source, const char *, int) const override
    {
        return context == textContext ? QLatin1Char('~') + QString::fromUtf8(source) : QString();
    }

    QByteArray context;
};

#endif // FMTASK_TESTS_MARKINGTRANSLATOR_H
