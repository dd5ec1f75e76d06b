#include "prompts.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

// Runs `examine` on the modal dialog as soon as the event loop of `exec` is up.
void whenModal(std::function<void(QWidget *)> examine)
{
    QTimer::singleShot(0, qApp, [examine] {
        QWidget *modal = QApplication::activeModalWidget();
        examine(modal);
        if (modal && modal->isVisible())
            modal->close();
    });
}

} // namespace

class PromptsTest : public QObject
{
    Q_OBJECT

private slots:
    void message_data();
    void message();
    void saveFileName();
};

void PromptsTest::message_data()
{
    // title given to the box (null: none of its own), buttons offered, button the user clicks
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("clicked");

    const int yesNo = QMessageBox::Yes | QMessageBox::No;
    QTest::newRow("no title, OK") << QString() << int(QMessageBox::Ok) << int(QMessageBox::Ok);
    QTest::newRow("titled, Yes") << QStringLiteral("Vellumio") << yesNo << int(QMessageBox::Yes);
    QTest::newRow("titled, No") << QStringLiteral("Vellumio") << yesNo << int(QMessageBox::No);
}

void PromptsTest::message()
{
    QFETCH(QString, title);
    QFETCH(int, buttons);
    QFETCH(int, clicked);

    bool examined = false;
    whenModal([&](QWidget *modal) {
        auto *box = qobject_cast<QMessageBox *>(modal);
        QVERIFY(box);
        examined = true;
        QCOMPARE(box->icon(), QMessageBox::NoIcon);
        QCOMPARE(box->windowTitle(), title);
        QCOMPARE(box->text(), QStringLiteral("line one\nline two"));
        QCOMPARE(int(box->standardButtons()), buttons);
        QVERIFY(!box->parentWidget());
        box->button(static_cast<QMessageBox::StandardButton>(clicked))->click();
    });

    const QMessageBox::StandardButton answer = Prompts::current().message(nullptr, title,
        QStringLiteral("line one\nline two"), QMessageBox::StandardButtons(buttons));

    QVERIFY(examined);
    QCOMPARE(int(answer), clicked);
}

void PromptsTest::saveFileName()
{
    QTemporaryDir dir;
    const QString chosen = dir.filePath(QStringLiteral("report.png"));
    const QString filters = QStringLiteral("BMP Format (*.bmp);;PNG Format (*.png)");
    QString selectedFilter = QStringLiteral("BMP Format (*.bmp)");

    bool examined = false;
    whenModal([&](QWidget *modal) {
        auto *dialog = qobject_cast<QFileDialog *>(modal);
        QVERIFY(dialog);
        examined = true;
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Save File As..."));
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog->nameFilters(), filters.split(QLatin1String(";;")));
        QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("BMP Format (*.bmp)"));
        dialog->selectNameFilter(QStringLiteral("PNG Format (*.png)"));
        dialog->selectFile(chosen);
        auto *buttons = dialog->findChild<QDialogButtonBox *>();
        QVERIFY(buttons);
        buttons->button(QDialogButtonBox::Save)->click();
    });

    const QString result
        = Prompts::current().saveFileName(nullptr, QStringLiteral("Save File As..."),
            dir.filePath(QStringLiteral("report")), filters, &selectedFilter);

    QVERIFY(examined);
    QCOMPARE(result, chosen);
    QCOMPARE(selectedFilter, QStringLiteral("PNG Format (*.png)"));
}

QTEST_MAIN(PromptsTest)

#include "tst_prompts.moc"
