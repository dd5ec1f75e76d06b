// SPDX-License-Identifier: GPL-3.0-or-later
// A main window with one of each element the modern style paints.
#include "tools/stylepreview/previewwindow.h"

#include "ui_previewwindow.h"

#include <QMenu>
#include <QPainter>
#include <QToolButton>

namespace {

// A small drawn icon, so the preview needs no image files or icon theme.
QIcon swatchIcon(const QColor &colour, bool round)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour.darker(160));
    painter.setBrush(colour);
    if (round)
        painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    else
        painter.drawRoundedRect(QRectF(2.5, 1.5, 11, 13), 2, 2);
    return QIcon(pixmap);
}

} // namespace

PreviewWindow::PreviewWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(new Ui::PreviewWindow)
{
    m_ui->setupUi(this);
    m_ui->action_new->setIcon(swatchIcon(QColor(0x4a, 0x90, 0xd9), false));
    m_ui->action_open->setIcon(swatchIcon(QColor(0xe8, 0xb0, 0x3c), false));
    m_ui->action_save->setIcon(swatchIcon(QColor(0x5c, 0xa8, 0x5c), false));
    m_ui->action_bold->setIcon(swatchIcon(QColor(0x30, 0x30, 0x30), true));
    m_ui->action_italic->setIcon(swatchIcon(QColor(0x90, 0x60, 0xc0), true));
    m_ui->action_grid->setIcon(swatchIcon(QColor(0xc0, 0x50, 0x50), false));
    addMenuButtons();
    m_ui->statusbar->showMessage(tr("Ready"));
    connect(m_ui->action_quit, &QAction::triggered, this, &QWidget::close);
}

PreviewWindow::~PreviewWindow()
{
    delete m_ui;
}

void PreviewWindow::addMenuButtons()
{
    auto *formats = new QMenu(this);
    formats->addAction(swatchIcon(QColor(0xd0, 0x40, 0x40), false), tr("As &PDF"));
    formats->addAction(tr("As &TIFF"));
    auto *exportAction
        = new QAction(swatchIcon(QColor(0x40, 0x90, 0x90), false), tr("Export"), this);
    exportAction->setMenu(formats);

    auto *split = new QToolButton(this);
    split->setDefaultAction(exportAction);
    split->setPopupMode(QToolButton::MenuButtonPopup);
    m_ui->toolBar_main->addSeparator();
    m_ui->toolBar_main->addWidget(split);

    auto *zoom = new QToolButton(this);
    zoom->setText(tr("Zoom"));
    zoom->setIcon(swatchIcon(QColor(0x70, 0x70, 0xd0), true));
    zoom->setMenu(m_ui->menu_view);
    zoom->setPopupMode(QToolButton::InstantPopup);
    m_ui->toolBar_main->addWidget(zoom);
}
