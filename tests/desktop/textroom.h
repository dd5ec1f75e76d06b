// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef FMTASK_TESTS_TEXTROOM_H
#define FMTASK_TESTS_TEXTROOM_H

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

// Where a control's style draws a text, measured with the control's own font: the room the style
// leaves for it (indicator, frame and margins taken off) and the place the glyphs take there.
// Every text that does not fit its room, or whose glyphs run under a neighbour, is described in
// one line of the result.
namespace TextRoom {

// The glyphs of a text laid out in a room as the style aligns them. Blanks at the end take room
// but show nothing, so they are left out.
inline QRect glyphRect(
    const QFontMetrics &metrics, const QRect &room, const QString &text, Qt::Alignment align)
{
    QString shown = text;
    while (shown.endsWith(QLatin1Char(' ')))
        shown.chop(1);
    const QSize size = metrics.size(Qt::TextShowMnemonic, shown);
    return QStyle::alignedRect(Qt::LeftToRight, align, size, room);
}

inline QString describe(const QWidget *widget, const QString &text, const QRect &glyphs,
    const QRect &room, const QString &why)
{
    return QStringLiteral("%1 \"%2\": %3 (text %4x%5, room %6x%7)")
        .arg(widget->objectName(), text, why)
        .arg(glyphs.width())
        .arg(glyphs.height())
        .arg(room.width())
        .arg(room.height());
}

// How far a text keeps from the control that follows it.
constexpr int neighbourGap = 4;

// The visible neighbour stacked above the widget, if any, that the glyphs (in the widget's
// coordinates) run under or come closer to than the gap.
inline const QWidget *coveringSibling(const QWidget *widget, const QRect &glyphs)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent)
        return nullptr;
    const QRect inParent = glyphs.translated(widget->pos()).adjusted(0, 0, neighbourGap, 0);
    const QObjectList &stack = parent->children();
    for (qsizetype above = stack.indexOf(widget) + 1; above < stack.size(); ++above) {
        const auto *sibling = qobject_cast<const QWidget *>(stack.at(above));
        if (sibling && !sibling->isWindow() && sibling->isVisibleTo(parent)
            && sibling->geometry().intersects(inParent))
            return sibling;
    }
    return nullptr;
}

// One text in its room: too wide, too high or under a neighbour.
inline void check(QStringList *problems, const QWidget *widget, const QString &text,
    const QRect &room, const QRect &glyphs)
{
    if (text.trimmed().isEmpty())
        return;
    if (glyphs.width() > room.width() || glyphs.height() > room.height()
        || !widget->rect().contains(glyphs))
        *problems << describe(widget, text, glyphs, room, QStringLiteral("cut"));
    else if (const QWidget *sibling = coveringSibling(widget, glyphs))
        *problems << describe(
            widget, text, glyphs, room, QStringLiteral("under ") + sibling->objectName());
}

inline void checkLabel(QStringList *problems, const QLabel *label)
{
    if (label->textFormat() == Qt::RichText
        || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text())))
        return;
    const int margin = label->margin();
    const QRect room = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    const QFontMetrics metrics = label->fontMetrics();
    if (!label->wordWrap()) {
        check(problems, label, label->text(), room,
            glyphRect(metrics, room, label->text(), label->alignment()));
        return;
    }
    // A wrapped text takes the lines it needs; a word longer than the room overflows it.
    const QRect wrapped = metrics.boundingRect(QRect(room.topLeft(), QSize(room.width(), 1 << 20)),
        int(label->alignment() | Qt::TextWordWrap), label->text());
    check(problems, label, label->text(), room,
        QStyle::alignedRect(Qt::LeftToRight, label->alignment(), wrapped.size(), room));
}

inline void checkButton(QStringList *problems, const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    QStyle *style = button->style();
    QRect room;
    Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter;
    if (qobject_cast<const QCheckBox *>(button)) {
        room = style->subElementRect(QStyle::SE_CheckBoxContents, &option, button);
    } else if (qobject_cast<const QRadioButton *>(button)) {
        room = style->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
    } else if (qobject_cast<const QPushButton *>(button)) {
        room = style->subElementRect(QStyle::SE_PushButtonContents, &option, button);
        align = Qt::AlignCenter;
    } else {
        const int frame = style->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, button);
        room = button->rect().adjusted(frame, frame, -frame, -frame);
        align = Qt::AlignCenter;
    }
    check(problems, button, button->text(), room,
        glyphRect(button->fontMetrics(), room, button->text(), align));
}

inline void checkGroupBox(QStringList *problems, const QGroupBox *box)
{
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.lineWidth = 1;
    option.textAlignment = box->alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    if (box->isCheckable())
        option.subControls |= QStyle::SC_GroupBoxCheckBox;
    if (box->isFlat())
        option.features |= QStyleOptionFrame::Flat;
    const QRect label
        = box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box);
    // The style sizes the label for its text; the title is cut where the box ends.
    const QRect room
        = box->rect().intersected(QRect(label.left(), label.top(), box->width(), label.height()));
    check(problems, box, box->title(), room,
        glyphRect(box->fontMetrics(), label, box->title(), Qt::AlignLeft | Qt::AlignVCenter));
}

// Every tab shows whole, inside the bar and clear of its scroll buttons.
inline void checkTabBar(QStringList *problems, const QTabBar *bar)
{
    QRect visible = bar->rect();
    for (const QToolButton *scroll : bar->findChildren<const QToolButton *>()) {
        if (scroll->isVisibleTo(bar))
            visible.setRight(qMin(visible.right(), scroll->geometry().left() - 1));
    }
    for (int index = 0; index < bar->count(); ++index) {
        QStyleOptionTab option;
        option.initFrom(bar);
        option.rect = bar->tabRect(index);
        option.text = bar->tabText(index);
        option.shape = bar->shape();
        const QRect room = bar->style()->subElementRect(QStyle::SE_TabBarTabText, &option, bar);
        const QRect glyphs = glyphRect(bar->fontMetrics(), room, option.text, Qt::AlignCenter);
        if (glyphs.width() > room.width() || !visible.contains(option.rect))
            *problems << QStringLiteral("%1 tab \"%2\": not shown whole (text %3, room %4)")
                             .arg(bar->parentWidget()->objectName(), option.text)
                             .arg(glyphs.width())
                             .arg(visible.intersected(room).width());
    }
}

// Every item of a combo box fits the box's text field, since any of them may be chosen.
inline void checkComboBox(QStringList *problems, const QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = combo->isEditable();
    option.frame = combo->hasFrame();
    const QRect room = combo->style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
    for (int row = 0; row < combo->count(); ++row) {
        const QString text = combo->itemText(row);
        check(problems, combo, text, room,
            glyphRect(combo->fontMetrics(), room, text, Qt::AlignLeft | Qt::AlignVCenter));
    }
}

// Every text below `root` (the root itself included) that its control does not show whole; tab
// bars apart.
inline QStringList problemsBelow(const QWidget *root)
{
    QStringList problems;
    QList<const QWidget *> widgets {root};
    for (const QWidget *widget : root->findChildren<const QWidget *>())
        widgets << widget;
    for (const QWidget *widget : std::as_const(widgets)) {
        if (qobject_cast<const QTabBar *>(widget->parentWidget()))
            continue; // its scroll buttons
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            checkLabel(&problems, label);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            checkButton(&problems, button);
        else if (const auto *box = qobject_cast<const QGroupBox *>(widget))
            checkGroupBox(&problems, box);
        else if (const auto *combo = qobject_cast<const QComboBox *>(widget))
            checkComboBox(&problems, combo);
    }
    return problems;
}

} // namespace TextRoom

#endif // FMTASK_TESTS_TEXTROOM_H
