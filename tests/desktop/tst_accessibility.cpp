// SPDX-License-Identifier: GPL-3.0-or-later
// Assistive technology finds every control of the three windows by a name of its own, in every
// shipped language, and the keyboard reaches every control, in the designed order where the
// design gives one.
#include "app/runprotocol.h"
#include "tests/desktop/forms.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

Q_DECLARE_METATYPE(Forms::Form)

namespace {

// The roles a user acts on; all other roles only arrange or describe.
bool isInteractive(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::ComboBox:
    case QAccessible::PageTab:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
        return true;
    default:
        return false;
    }
}

QString describe(QAccessibleInterface *element)
{
    const QObject *object = element->object();
    return QStringLiteral("%1 (role 0x%2)")
        .arg(object ? object->objectName() : QStringLiteral("?"))
        .arg(int(element->role()), 0, 16);
}

// The interactive elements on screen below `element`, with the names assistive technology reads.
void collect(QAccessibleInterface *element, QList<QAccessibleInterface *> *found)
{
    if (!element || element->state().invisible)
        return;
    if (isInteractive(element->role()))
        *found << element;
    for (int index = 0; index < element->childCount(); ++index)
        collect(element->child(index), found);
}

// A name a listener can understand: something with a letter in it ("..." is not).
bool isName(const QString &name)
{
    return std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetter(); });
}

// The name a focused widget is known by: a tab widget's bar counts as the tab widget, and the line
// edit inside a spin box as the spin box.
QString ownerName(const QWidget *focus)
{
    if (qobject_cast<const QTabBar *>(focus)
        || qobject_cast<const QAbstractSpinBox *>(focus->parent()))
        focus = focus->parentWidget();
    return focus->objectName();
}

// The controls the keyboard must reach on the shown page: every enabled one that takes focus.
QList<QWidget *> reachable(const QWidget *window)
{
    QList<QWidget *> controls;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        const auto *box = qobject_cast<const QGroupBox *>(widget);
        const bool control = qobject_cast<const QAbstractButton *>(widget)
            || qobject_cast<const QLineEdit *>(widget)
            || qobject_cast<const QAbstractSpinBox *>(widget)
            || qobject_cast<const QComboBox *>(widget) || qobject_cast<const QTabBar *>(widget)
            || (box && box->isCheckable());
        if (control && widget->isVisibleTo(window) && widget->isEnabled()
            && !qobject_cast<const QAbstractSpinBox *>(widget->parent())
            && !qobject_cast<const QTabBar *>(widget->parent()))
            controls << widget;
    }
    return controls;
}

// The widgets Tab visits from the window's first one, once round.
QStringList tabWalk(QWidget *window)
{
    QStringList visited;
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window))
        return visited;
    QTest::keyClick(window, Qt::Key_Tab);
    for (int step = 0; step < 200; ++step) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus || (!visited.isEmpty() && ownerName(focus) == visited.first()))
            break;
        visited << ownerName(focus);
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return visited;
}

// Tab stops at one button of a group of radio buttons, the arrow keys move within it: the buttons
// of the group that the arrow keys reach from the visited one, that one included.
QStringList arrowWalk(QWidget *start)
{
    QStringList reached {start->objectName()};
    QList<QWidget *> pending {start};
    while (!pending.isEmpty()) {
        QWidget *from = pending.takeFirst();
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
            from->setFocus(Qt::TabFocusReason);
            QTest::keyClick(from, key);
            QWidget *to = QApplication::focusWidget();
            if (to && !reached.contains(to->objectName())) {
                reached << to->objectName();
                pending << to;
            }
        }
    }
    return reached;
}

// Runs a check once for every page of the window's tab widgets, with that page shown.
template<class Check>
void onEveryPage(QWidget *window, Check check)
{
    const QList<QTabWidget *> tabWidgets = window->findChildren<QTabWidget *>();
    for (QTabWidget *tabs : tabWidgets) {
        for (int index = 0; index < tabs->count(); ++index) {
            tabs->setCurrentIndex(index);
            check(tabs->tabText(index));
        }
    }
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private slots:
    // Every control on screen has a name, and no two controls of one kind on screen together
    // share one, so that a listener can tell them apart.
    void everyControlNamed_data()
    {
        QTest::addColumn<QString>("language"); // empty: English
        QTest::addColumn<Forms::Form>("form");
        const QStringList languages = QStringList {QString()} + RunProtocol::shippedLanguages();
        for (const QString &language : languages) {
            for (const Forms::Form form : {Forms::Main, Forms::Pdf, Forms::Banner})
                QTest::addRow("%s, %s", language.isEmpty() ? "en" : qPrintable(language),
                    Forms::formName(form))
                    << language << form;
        }
    }
    void everyControlNamed()
    {
        QFETCH(QString, language);
        QFETCH(Forms::Form, form);
        QTranslator translator;
        if (!language.isEmpty()) {
            QVERIFY2(Forms::loadTranslation(&translator, language), qPrintable(language));
            QCoreApplication::installTranslator(&translator);
        }
        const auto removeTranslator
            = qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
        const std::unique_ptr<Forms::Shown> shown = Forms::show(form, QStringLiteral("Fusion"));

        QStringList problems;
        const auto check = [&] {
            QList<QAccessibleInterface *> elements;
            collect(QAccessible::queryAccessibleInterface(shown->window()), &elements);
            QHash<QPair<int, QString>, QString> seen;
            for (QAccessibleInterface *element : std::as_const(elements)) {
                const QString name = element->text(QAccessible::Name).trimmed();
                if (!isName(name))
                    problems << describe(element) + QStringLiteral(" has no name: \"") + name
                            + QLatin1Char('"');
                const auto key = qMakePair(int(element->role()), name);
                if (seen.contains(key) && isName(name))
                    problems << describe(element) + QStringLiteral(" and ") + seen.value(key)
                            + QStringLiteral(" share the name \"") + name + QStringLiteral("\"");
                seen.insert(key, describe(element));
            }
        };
        check();
        onEveryPage(shown->window(), [&](const QString &) { check(); });
        QVERIFY2(Forms::none(problems), "controls without a name of their own, listed above");
    }

    // Tab reaches every enabled control on every page; in the PDF dialog, in the designed order
    // (its two repeat fields stand outside that order but are reached too).
    void keyboardReachesEveryControl_data()
    {
        QTest::addColumn<Forms::Form>("form");
        QTest::addColumn<QStringList>("designedOrder"); // empty: none designed
        QTest::newRow("main dialog") << Forms::Main << QStringList();
        QTest::newRow("PDF dialog")
            << Forms::Pdf
            << QStringList {"pb_ok", "pb_cancel", "tabWidget", "le_pdf_title", "le_pdf_subject",
                   "le_pdf_author", "le_pdf_keywords", "le_pdf_creator", "le_pdf_producer",
                   "cb_security", "le_pdf_user_pw", "le_pdf_owner_pw", "ch_showchars_pw",
                   "ch_pdf_print", "ch_pdf_highprint", "ch_pdf_copy", "ch_pdf_accessible",
                   "ch_pdf_edit", "ch_pdf_editnotes", "ch_pdf_fillandsign", "ch_pdf_assemble"};
    }
    void keyboardReachesEveryControl()
    {
        QFETCH(Forms::Form, form);
        QFETCH(QStringList, designedOrder);
        // With protection on, the controls of the protection group take part too.
        const std::unique_ptr<Forms::Shown> shown
            = Forms::show(form, QStringLiteral("Fusion"), "pdf_protect=true\n");
        onEveryPage(shown->window(), [&](const QString &page) {
            QStringList walk = tabWalk(shown->window());
            // Tab goes round: read the round from the designed first control.
            if (!designedOrder.isEmpty() && walk.contains(designedOrder.first())) {
                const qsizetype first = walk.indexOf(designedOrder.first());
                walk = walk.mid(first) + walk.first(first);
            }
            QStringList designed;
            for (const QString &name : designedOrder) {
                if (walk.contains(name))
                    designed << name;
            }
            QStringList walked = walk;
            walked.removeIf([&](const QString &name) { return !designedOrder.contains(name); });
            QCOMPARE(walked, designed);

            const QList<QWidget *> controls = reachable(shown->window());
            for (QWidget *control : controls) {
                if (qobject_cast<QRadioButton *>(control) && walk.contains(control->objectName()))
                    walk << arrowWalk(control);
            }
            for (const QWidget *control : controls)
                QVERIFY2(walk.contains(ownerName(control)),
                    qPrintable(control->objectName() + " not reached on page " + page + ": "
                        + walk.join(' ')));
        });
    }
};

QTEST_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
