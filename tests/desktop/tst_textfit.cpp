// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of the three forms shows whole: in English and every shipped language, in the
// platform's style and the program's own, at the scale factor of the run.
#include "app/runprotocol.h"
#include "tests/desktop/forms.h"
#include "tests/desktop/textroom.h"

#include <QFontInfo>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

Q_DECLARE_METATYPE(Forms::Form)

class tst_TextFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The font a Linux desktop gives programs without a theme of their own; fontconfig makes
        // it DejaVu Sans on Debian, one of the widest.
        QApplication::setFont(QFont(QStringLiteral("Sans Serif"), 9));
        qInfo("font %s, %g dpi, scale factor %g",
            qPrintable(QFontInfo(QApplication::font()).family()),
            QGuiApplication::primaryScreen()->logicalDotsPerInch(),
            QGuiApplication::primaryScreen()->devicePixelRatio());
    }

    void everyTextWhole_data() { rows(); }
    void everyTextWhole()
    {
        const std::unique_ptr<Opened> shown = show();
        QVERIFY(shown);
        QStringList problems = TextRoom::problemsBelow(shown->form->window());
        // The shared options of the format pages are measured where the form puts them.
        for (QTabWidget *tabs : shown->form->window()->findChildren<QTabWidget *>()) {
            for (int index = 0; index < tabs->count(); ++index)
                problems << TextRoom::problemsBelow(tabs->widget(index));
        }
        QVERIFY2(none(problems), "texts not shown whole, listed above");
    }

    // Every tab shows whole whichever page is current, without scrolling. The main dialog's
    // twelve tabs do not fit its designed width with the tab padding of the styles (24 px a
    // tab): that needs a narrower padding from the style, not from the form.
    void everyTabWhole_data() { rows(); }
    void everyTabWhole()
    {
        QFETCH(Forms::Form, form);
        const std::unique_ptr<Opened> shown = show();
        QVERIFY(shown);
        if (form == Forms::Main)
            QEXPECT_FAIL("", "the styles' tab padding is too wide for twelve tabs", Continue);
        QStringList problems;
        for (QTabWidget *tabs : shown->form->window()->findChildren<QTabWidget *>()) {
            for (int index = 0; index < tabs->count(); ++index) {
                tabs->setCurrentIndex(index);
                TextRoom::checkTabBar(&problems, tabs->tabBar());
            }
        }
        QVERIFY2(none(problems), "texts not shown whole, listed above");
    }

private:
    // Lists each problem on its own line, since a failure message is cut at its end.
    static bool none(QStringList problems)
    {
        problems.removeDuplicates();
        for (const QString &problem : std::as_const(problems))
            qWarning("%s", qPrintable(problem));
        return problems.isEmpty();
    }

    // Every shipped language, English first, in each style, for each form.
    static void rows()
    {
        QTest::addColumn<QString>("language"); // empty: English
        QTest::addColumn<QString>("style");
        QTest::addColumn<Forms::Form>("form");
        const QStringList languages = QStringList {QString()} + RunProtocol::shippedLanguages();
        for (const QString &language : languages) {
            for (const QString &style : Forms::styles()) {
                for (const Forms::Form form : {Forms::Main, Forms::Pdf, Forms::Banner})
                    QTest::addRow("%s, %s, %s", language.isEmpty() ? "en" : qPrintable(language),
                        qPrintable(style), Forms::formName(form))
                        << language << style << form;
            }
        }
    }

    // The window of the current row, opened in its style with its language installed.
    struct Opened
    {
        QTranslator translator;
        std::unique_ptr<Forms::Shown> form;
        ~Opened() { QCoreApplication::removeTranslator(&translator); }
    };
    static std::unique_ptr<Opened> show()
    {
        QFETCH(QString, language);
        QFETCH(QString, style);
        QFETCH(Forms::Form, form);
        auto opened = std::make_unique<Opened>();
        if (!language.isEmpty()) {
            if (!Forms::loadTranslation(&opened->translator, language)) {
                QTest::qFail(qPrintable("no translation " + language), __FILE__, __LINE__);
                return nullptr;
            }
            QCoreApplication::installTranslator(&opened->translator);
        }
        opened->form = Forms::show(form, style);
        return opened;
    }
};

QTEST_MAIN(tst_TextFit)
#include "tst_textfit.moc"
