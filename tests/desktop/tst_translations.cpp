// SPDX-License-Identifier: GPL-3.0-or-later
// The shipped translations: every text of the three windows translated, names and the colour
// lookup keys left as they are, and every message of the dialog's and the agent's catalogues
// keeping its placeholders, line breaks, edge blanks and markup.
#include "app/runprotocol.h"
#include "formats/formatcatalogue.h"
#include "tests/desktop/forms.h"

#include <QComboBox>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

namespace {

// Hands on what a shipped translation gives and notes every text of the program's windows it has
// no translation for; Qt's own texts are Qt's.
class RecordingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *disambiguation,
        int count) const override
    {
        const QString translation = shipped.translate(context, source, disambiguation, count);
        if (!windowClasses.contains(QByteArray(context)))
            return translation;
        const QString key
            = QLatin1String(context) + QLatin1String(": ") + QString::fromUtf8(source);
        if (translation.isEmpty())
            missing.insert(key);
        else
            given.insert(QString::fromUtf8(source), translation);
        return translation;
    }

    QTranslator shipped;
    const QByteArrayList windowClasses {MainWindow::staticMetaObject.className(),
        pdfprotect::staticMetaObject.className(), FileSaveDialog::staticMetaObject.className()};
    mutable QSet<QString> missing;
    mutable QHash<QString, QString> given;
};

// Texts that are names: the program's, the formats' and the compressions'. They read the same in
// every language.
QStringList names()
{
    QStringList list {QStringLiteral("Vellumio"), QStringLiteral("...")};
    for (const Formats::Format &format : Formats::all())
        list << QString::fromLatin1(format.tabText);
    for (const Formats::CompressionMethod &method : Formats::compressionMethods())
        list << QString::fromLatin1(method.text);
    return list;
}

struct Message
{
    QString context;
    QString source;
    QString translation;
};

// The messages of a catalogue's .ts file for a language.
QList<Message> messagesOf(const QString &catalogue)
{
    QFile file(QStringLiteral(FMTASK_TRANSLATIONS_DIR "/") + catalogue + QStringLiteral(".ts"));
    QList<Message> messages;
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            messages << Message {context, xml.readElementText(), QString()};
        else if (xml.name() == QLatin1String("translation") && !messages.isEmpty())
            messages.last().translation = xml.readElementText();
    }
    return messages;
}

// What must come through a translation unchanged: placeholders, markup tags, the number of line
// breaks and the blanks at either end (some messages are joined to a file name).
QString skeleton(const QString &text)
{
    static const QRegularExpression marks(QStringLiteral("%[0-9n]+|<[^>]*>"));
    static const QRegularExpression leading(QStringLiteral("^\\s*"));
    static const QRegularExpression trailing(QStringLiteral("\\s*$"));
    QStringList parts;
    for (const QRegularExpressionMatch &match : marks.globalMatch(text))
        parts << match.captured();
    parts << QString::number(text.count(QLatin1Char('\n'))) + QStringLiteral(" line breaks");
    parts << QStringLiteral("starts \"") + leading.match(text).captured() + QLatin1Char('"');
    parts << QStringLiteral("ends \"") + trailing.match(text).captured() + QLatin1Char('"');
    return parts.join(QLatin1String(" | "));
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(!RunProtocol::shippedLanguages().isEmpty()); }

    // Each window built in the language asks for no text that the translation leaves out; names
    // come back as they are, and the colour list keeps the texts the colour lookup reads.
    void windowTexts_data() { languageRows(); }
    void windowTexts()
    {
        QFETCH(QString, language);
        RecordingTranslator translator;
        QVERIFY(Forms::loadTranslation(&translator.shipped, language));
        QCoreApplication::installTranslator(&translator);
        const auto removeTranslator
            = qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
        for (const Forms::Form form : {Forms::Main, Forms::Pdf, Forms::Banner}) {
            const std::unique_ptr<Forms::Shown> shown = Forms::show(form, QStringLiteral("Fusion"));
            if (form != Forms::Main)
                continue;
            const auto *colours
                = shown->main->findChild<QComboBox *>(QStringLiteral("cb_combobox"));
            QVERIFY(colours);
            for (int row = 0; row < colours->count(); ++row)
                QVERIFY2(!Formats::colorCodeForText(colours->itemText(row)).isEmpty(),
                    qPrintable(colours->itemText(row)));
        }
        QStringList missing = translator.missing.values();
        missing.sort();
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1String("\n  "))));
        for (const QString &name : names()) {
            if (translator.given.contains(name))
                QCOMPARE(translator.given.value(name), name);
        }
    }

    // Every message of the language, forms, message boxes and the agent's notifications alike, is
    // translated in the program as in its .ts file, and keeps what the program relies on.
    void messages_data()
    {
        QTest::addColumn<QString>("catalogue"); // and language: "fmtask_de"
        for (const char *program : {"fmtask", "vellumio"}) {
            for (const QString &language : RunProtocol::shippedLanguages()) {
                const QString catalogue = QLatin1String(program) + QLatin1Char('_') + language;
                QTest::newRow(qPrintable(catalogue)) << catalogue;
            }
        }
    }
    void messages()
    {
        QFETCH(QString, catalogue);
        QTranslator shipped;
        QVERIFY(shipped.load(catalogue, QStringLiteral(FMTASK_QM_DIR)));
        const QList<Message> messages = messagesOf(catalogue);
        QVERIFY(!messages.isEmpty());
        for (const Message &message : messages) {
            const QString translation = shipped.translate(
                message.context.toUtf8().constData(), message.source.toUtf8().constData());
            const QString where = message.context + QStringLiteral(": ") + message.source;
            QVERIFY2(!translation.isEmpty(), qPrintable(where));
            QCOMPARE(translation, message.translation);
            QCOMPARE(skeleton(translation), skeleton(message.source));
        }
    }

private:
    static void languageRows()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : RunProtocol::shippedLanguages())
            QTest::newRow(qPrintable(language)) << language;
    }
};

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
