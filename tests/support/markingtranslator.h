#ifndef FMTASK_TESTS_MARKINGTRANSLATOR_H
#define FMTASK_TESTS_MARKINGTRANSLATOR_H

#include <QByteArray>
#include <QTranslator>

// Marks every text of one translation context with a leading "~", as a translation installed at
// run time would change it.
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char *context)
        : context(context)
    { }

    bool isEmpty() const override { return false; }

    QString translate(const char *textContext, const char *source, const char *, int) const override
    {
        if (context != textContext)
            return QString();
        return QLatin1Char('~') + QString::fromUtf8(source);
    }

private:
    QByteArray context;
};

#endif // FMTASK_TESTS_MARKINGTRANSLATOR_H
