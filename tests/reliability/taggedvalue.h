#ifndef FMTASK_TESTS_TAGGEDVALUE_H
#define FMTASK_TESTS_TAGGEDVALUE_H

#include <QRegularExpression>
#include <QString>

// Values that say which save wrote them: "w<writer>r<round>:" + filler + ":" + the same tag. A
// value cut short, spliced from two saves or padded shows up as a value without a tag.
namespace TaggedValue {

inline QString tag(int writer, int round)
{
    return QStringLiteral("w%1r%2").arg(writer).arg(round);
}

inline QString make(const QString &tag, int fillerLength)
{
    return tag + QLatin1Char(':') + QString(fillerLength, QLatin1Char('x')) + QLatin1Char(':')
        + tag;
}

// The tag of a whole value, or an empty text when the value is not one that make() gave.
inline QString tagOf(const QString &value, int fillerLength)
{
    static const QRegularExpression pattern(QStringLiteral("^(w\\d+r\\d+):(x*):(w\\d+r\\d+)$"));
    const QRegularExpressionMatch match = pattern.match(value);
    if (!match.hasMatch() || match.captured(1) != match.captured(3)
        || match.capturedLength(2) != fillerLength)
        return QString();
    return match.captured(1);
}

} // namespace TaggedValue

#endif // FMTASK_TESTS_TAGGEDVALUE_H
