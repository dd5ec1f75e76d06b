// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of the three windows shows whole, in the language of the run's locale (fontconfig
// picks the desktop font for it, as for the program), in the platform's style and the program's
// own, at the scale factor of the run. CTest runs it once per language and scale factor.
#include "app/runprotocol.h"
#include "tests/desktop/forms.h"
#include "tests/desktop/textroom.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

Q_DECLARE_METATYPE(Forms::Form)

namespace {

// The writing system a language's texts need a font for.
QFontDatabase::WritingSystem writingSystemOf(const QString &language)
{
    if (language == QLatin1String("zh_CN"))
        return QFontDatabase::SimplifiedChinese;
    if (language == QLatin1String("ja"))
        return QFontDatabase::Japanese;
    if (language == QLatin1String("ru"))
        return QFontDatabase::Cyrillic;
    return QFontDatabase::Latin;
}

} // namespace

class tst_TextFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The font a Linux desktop gives programs without a theme of their own: fontconfig makes
        // it DejaVu Sans on Debian, one of the widest, or the font of the locale's script.
        QApplication::setFont(QFont(QStringLiteral("Sans Serif"), 9));
        language
            = RunProtocol::userLanguage([](const char *name) { return qEnvironmentVariable(name); },
                RunProtocol::shippedLanguages());
        if (QFontDatabase::families(writingSystemOf(language)).isEmpty())
            QSKIP("no font for the language's script (Debian: fonts-noto-cjk)");
        QVERIFY(language.isEmpty() || RunProtocol::installTranslation(language));
        qInfo("language %s, font %s, %g dpi, scale factor %g",
            language.isEmpty() ? "en" : qPrintable(language),
            qPrintable(QFontInfo(QApplication::font()).family()),
            QGuiApplication::primaryScreen()->logicalDotsPerInch(),
            QGuiApplication::primaryScreen()->devicePixelRatio());
    }

    // Every text and every tab shows whole with each page current, the shared options of the
    // format pages on it and no tab scrolled away: the main dialog's twelve tabs fit its designed
    // width only with the narrow padding both looks give them.
    void everyTextWhole_data() { rows(); }
    void everyTextWhole()
    {
        QFETCH(QString, style);
        QFETCH(Forms::Form, form);
        const QFont desktopFont = QApplication::font();
        const std::unique_ptr<Forms::Shown> shown = Forms::show(form, style);
        // Message boxes and file dialogs keep the desktop's font whatever the windows set.
        QCOMPARE(QApplication::font(), desktopFont);
        QStringList problems = TextRoom::problemsBelow(shown->window());
        for (QTabWidget *tabs : shown->window()->findChildren<QTabWidget *>()) {
            for (int index = 0; index < tabs->count(); ++index) {
                tabs->setCurrentIndex(index);
                problems << TextRoom::problemsBelow(tabs->widget(index));
                TextRoom::checkTabBar(&problems, tabs->tabBar());
            }
        }
        QVERIFY2(Forms::none(problems), "texts not shown whole, listed above");
    }

private:
    // Each style, for each window.
    void rows() const
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<Forms::Form>("form");
        for (const QString &style : Forms::styles()) {
            for (const Forms::Form form : {Forms::Main, Forms::Pdf, Forms::Banner})
                QTest::addRow("%s, %s, %s", language.isEmpty() ? "en" : qPrintable(language),
                    qPrintable(style), Forms::formName(form))
                    << style << form;
        }
    }

    QString language; // empty: English
};

QTEST_MAIN(tst_TextFit)
#include "tst_textfit.moc"
