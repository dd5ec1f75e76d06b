// SPDX-License-Identifier: GPL-3.0-or-later
// Passwords checked against 128-bit encryption and the qpdf job files that encrypt and date a PDF.
#include "render/pdfsecurity.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace PdfSecurity {

namespace {

constexpr int maximumPasswordLength = 32;

// The characters that PDFDocEncoding places outside printable ASCII and Latin-1.
constexpr char16_t pdfDocSpecials[] = {0x02D8, 0x02C7, 0x02C6, 0x02D9, 0x02DD, 0x02DB, 0x02DA,
    0x02DC, 0x2022, 0x2020, 0x2021, 0x2026, 0x2014, 0x2013, 0x0192, 0x2044, 0x2039, 0x203A, 0x2212,
    0x2030, 0x201E, 0x201C, 0x201D, 0x2018, 0x2019, 0x201A, 0x2122, 0xFB01, 0xFB02, 0x0141, 0x0152,
    0x0160, 0x0178, 0x017D, 0x0131, 0x0142, 0x0153, 0x0161, 0x017E, 0x20AC};

bool inPdfDocEncoding(char32_t ch)
{
    if (ch == '\t' || ch == '\n' || ch == '\r' || (ch >= 0x20 && ch <= 0x7E))
        return true;
    if (ch >= 0xA1 && ch <= 0xFF)
        return ch != 0xAD;
    for (char16_t special : pdfDocSpecials) {
        if (ch == special)
            return true;
    }
    return false;
}

QString describe(char32_t ch)
{
    if (ch < 0x20 || (ch >= 0x7F && ch < 0xA0))
        return QStringLiteral("U+%1").arg(uint(ch), 4, 16, QLatin1Char('0')).toUpper();
    return QLatin1Char('"') + QString::fromUcs4(&ch, 1) + QLatin1Char('"');
}

QString yesNo(bool allowed)
{
    return allowed ? QStringLiteral("y") : QStringLiteral("n");
}

QString pdfText(const QString &text)
{
    return QStringLiteral("u:") + text;
}

QString pdfDate(const QDateTime &time)
{
    const int offset = time.offsetFromUtc() / 60;
    const QString zone = offset == 0 ? QStringLiteral("Z")
                                     : QStringLiteral("%1%2'%3'")
                                           .arg(offset < 0 ? QLatin1Char('-') : QLatin1Char('+'))
                                           .arg(qAbs(offset) / 60, 2, 10, QLatin1Char('0'))
                                           .arg(qAbs(offset) % 60, 2, 10, QLatin1Char('0'));
    return pdfText(QStringLiteral("D:") + time.toString(QStringLiteral("yyyyMMddHHmmss")) + zone);
}

} // namespace

QString passwordProblem(const QString &password)
{
    const QList<uint> characters = password.toUcs4();
    for (uint ch : characters) {
        if (!inPdfDocEncoding(ch))
            return QCoreApplication::translate("Render", "the character %1 is not allowed")
                .arg(describe(ch));
    }
    if (characters.size() > maximumPasswordLength)
        return QCoreApplication::translate("Render", "it is longer than %1 characters")
            .arg(maximumPasswordLength);
    return {};
}

QString refusal(const PdfSettings &pdf)
{
    if (!pdf.protect)
        return {};
    const std::pair<const char *, QString> passwords[] = {
        {QT_TRANSLATE_NOOP(
             "Render", "The PDF user password cannot be used with 128-bit encryption: %1."),
            pdf.userPassword},
        {QT_TRANSLATE_NOOP(
             "Render", "The PDF owner password cannot be used with 128-bit encryption: %1."),
            pdf.ownerPassword},
    };
    for (const auto &[message, password] : passwords) {
        const QString problem = passwordProblem(password);
        if (!problem.isEmpty())
            return QCoreApplication::translate("Render", message).arg(problem);
    }
    return {};
}

QByteArray qpdfJob(
    const QString &input, const QString &output, const QString &infoUpdate, const PdfSettings &pdf)
{
    QJsonObject job {{QStringLiteral("inputFile"), input}, {QStringLiteral("outputFile"), output}};
    if (!infoUpdate.isEmpty())
        job.insert(QStringLiteral("updateFromJson"), infoUpdate);
    if (pdf.protect) {
        const PdfPermissions &allow = pdf.permissions;
        // Accessibility is left out: qpdf always allows it with this encryption, as current
        // readers expect.
        const QJsonObject permissions {
            {QStringLiteral("useAes"), QStringLiteral("y")},
            {QStringLiteral("print"),
                !allow.print          ? QStringLiteral("none")
                    : allow.highPrint ? QStringLiteral("full")
                                      : QStringLiteral("low")},
            {QStringLiteral("modifyOther"), yesNo(allow.edit)},
            {QStringLiteral("extract"), yesNo(allow.copy)},
            {QStringLiteral("annotate"), yesNo(allow.editNotes)},
            {QStringLiteral("form"), yesNo(allow.fillAndSign)},
            {QStringLiteral("assemble"), yesNo(allow.assemble)},
        };
        job.insert(QStringLiteral("encrypt"),
            QJsonObject {{QStringLiteral("userPassword"), pdf.userPassword},
                {QStringLiteral("ownerPassword"), pdf.ownerPassword},
                {QStringLiteral("128bit"), permissions}});
    }
    return QJsonDocument(job).toJson(QJsonDocument::Compact);
}

QStringList trailerQuery(const QString &input)
{
    return {QStringLiteral("--json=2"), QStringLiteral("--json-key=qpdf"),
        QStringLiteral("--json-object=trailer"), input};
}

QByteArray infoUpdate(
    const QByteArray &trailerJson, const PdfSettings &pdf, const QDateTime &now, QString *error)
{
    const QJsonArray parts
        = QJsonDocument::fromJson(trailerJson).object().value(QStringLiteral("qpdf")).toArray();
    const QJsonObject header = parts.at(0).toObject();
    QJsonObject trailer = parts.at(1)
                              .toObject()
                              .value(QStringLiteral("trailer"))
                              .toObject()
                              .value(QStringLiteral("value"))
                              .toObject();
    const int maxObjectId = header.value(QStringLiteral("maxobjectid")).toInt();
    if (maxObjectId <= 0 || !trailer.contains(QStringLiteral("/Root"))) {
        *error = QStringLiteral("qpdf gave no readable trailer");
        return {};
    }

    // The information replaces the file's own, or a new object holds it.
    static const QRegularExpression reference(QStringLiteral("^\\d+ \\d+ R$"));
    QString infoReference = trailer.value(QStringLiteral("/Info")).toString();
    if (!reference.match(infoReference).hasMatch()) {
        infoReference = QString::number(maxObjectId + 1) + QStringLiteral(" 0 R");
        trailer.insert(QStringLiteral("/Info"), infoReference);
    }

    QJsonObject info {{QStringLiteral("/CreationDate"), pdfDate(now)},
        {QStringLiteral("/ModDate"), pdfDate(now)}};
    const std::pair<const char *, QString> fields[]
        = {{"/Title", pdf.title}, {"/Author", pdf.author}, {"/Subject", pdf.subject},
            {"/Keywords", pdf.keywords}, {"/Creator", pdf.creator}, {"/Producer", pdf.producer}};
    for (const auto &[key, text] : fields) {
        if (!text.isEmpty())
            info.insert(QLatin1String(key), pdfText(text));
    }

    QJsonObject objects {
        {QStringLiteral("obj:") + infoReference, QJsonObject {{QStringLiteral("value"), info}}},
        {QStringLiteral("trailer"), QJsonObject {{QStringLiteral("value"), trailer}}}};
    const QJsonObject update {{QStringLiteral("qpdf"), QJsonArray {header, objects}}};
    return QJsonDocument(update).toJson(QJsonDocument::Compact);
}

} // namespace PdfSecurity
