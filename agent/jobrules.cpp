// SPDX-License-Identifier: GPL-3.0-or-later
// The agent's rules on titles and on the dialog's outcome.
#include "agent/jobrules.h"

#include "formats/pathhelpers.h"

#include <QRegularExpression>

namespace JobRules {

namespace {

bool isBreak(QChar c)
{
    return c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r')
        || c == QChar(0x0b) || c == QChar(0x0c) || c == QChar(0x85)
        || c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

// Control characters, bidirectional overrides and other invisible format characters, lone
// surrogate halves and unassigned code points never reach a file name.
bool isDropped(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_NotAssigned:
        return true;
    default:
        return false;
    }
}

QString withoutUnsafeCharacters(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isBreak(c)) {
            kept += QLatin1Char(' ');
            continue;
        }
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            const char32_t full = QChar::surrogateToUcs4(c, text.at(i + 1));
            if (!isDropped(full))
                kept += text.mid(i, 2);
            ++i;
            continue;
        }
        if (!isDropped(c.unicode()))
            kept += c;
    }
    return kept.simplified();
}

// Cuts at a character boundary so that the UTF-8 form has at most maxNameBytes.
QString bounded(const QString &name)
{
    QString cut;
    int bytes = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const qsizetype length = name.at(i).isHighSurrogate() && i + 1 < name.size() ? 2 : 1;
        const QString character = name.mid(i, length);
        bytes += int(character.toUtf8().size());
        if (bytes > maxNameBytes)
            break;
        cut += character;
        i += length - 1;
    }
    return cut;
}

QString trimmed(const QString &name, const QRegularExpression &edge)
{
    QString result = name;
    return result.remove(edge);
}

} // namespace

QString safeFileName(const QString &title)
{
    static const QRegularExpression separators(QStringLiteral("[/\\\\]+"));
    static const QRegularExpression leading(QStringLiteral("^[-.\\s]+"));
    static const QRegularExpression trailing(QStringLiteral("[.\\s]+$"));

    const QStringList parts = title.split(separators, Qt::SkipEmptyParts);
    QString name = parts.isEmpty() ? QString() : withoutUnsafeCharacters(parts.last());
    name = trimmed(PathHelpers::stripExtension(trimmed(name, leading)), trailing);
    name = trimmed(bounded(name), trailing);
    return name.isEmpty() ? QStringLiteral("Document") : name;
}

bool dialogWanted(const QVariant &chDialog)
{
    return chDialog.toString().compare(QLatin1String("false"), Qt::CaseInsensitive) != 0;
}

AfterDialog afterDialog(const DialogEnd &end)
{
    if (!end.started)
        return AfterDialog::NotStarted;
    if (!end.exitedNormally)
        return AfterDialog::EndedAbnormally;
    // Before the dialog the agent stored "isabort" = "true": a "false" now can only come from this
    // job's Print, never from an earlier one.
    if (end.keyRewritten && end.isAbort.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return AfterDialog::Render;
    return AfterDialog::Cancelled;
}

} // namespace JobRules
